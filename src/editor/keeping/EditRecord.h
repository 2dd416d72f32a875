// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "capture/FinishedCapture.h"
#include "editor/Mark.h"
#include "editor/keeping/PixelHash.h"

#include <vector>

/// A picture with its annotations still apart from it, and where it belongs.
struct KeptEdit {
    FinishedCapture capture; ///< The picture without annotations; its area is not kept.
    std::vector<Mark::Copy> annotations; ///< Topmost last.
};

/// What a file tells of a kept edit: all but the picture's pixels. The format is versioned,
/// little-endian, and ends with a checksum; a text is its length in bytes and UTF-8, a length is 32
/// bits. See EditRecord.cpp for the order.
struct EditRecord {
    PixelHash base; ///< Of the picture without annotations.
    qint64 time = 0; ///< When it was written, in milliseconds since 1970.
    KeptEdit edit; ///< Its image is null.

    /// More than any editor makes; a file that is longer is not even read.
    static constexpr qsizetype largest = 64 << 20; // Bytes.

    QByteArray encoded() const;

    /// Fails with a sentence where the bytes are damaged, of a newer version, or such as no editor
    /// writes. Whatever the bytes are, it takes little more memory than they do.
    static Result<EditRecord> decoded(QByteArrayView bytes);
};
