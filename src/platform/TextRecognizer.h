// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QImage>
#include <QList>
#include <QRect>
#include <QStringList>

#include <atomic>

/// What can be read in a picture.
struct RecognisedText {
    struct Line {
        QString text; ///< Never empty.
        QRect box; ///< In pixels of the picture.
    };

    QList<Line> lines; ///< In reading order.
    QStringList codes; ///< What QR and bar codes say, from top to bottom.
};

/// Reads pictures of text, in the languages of the user and what else is installed. For one worker
/// thread at a time: everything here blocks.
class TextRecognizer {
public:
    virtual ~TextRecognizer() = default;

    /// Fails with a sentence for the user where nothing can be read at all, as without data for
    /// any language; a picture without text is no failure.
    /// @param scale pixels of the picture per point: letters of a usual size are found best.
    /// @param cancelled may be set by any thread; the answer is then Cancelled, and comes soon.
    virtual Result<RecognisedText> recognise(
        const QImage& picture, double scale, const std::atomic<bool>& cancelled)
        = 0;

    /// Gives back the memory that is kept to be faster next time.
    virtual void release() = 0;
};
