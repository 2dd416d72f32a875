// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FaceDetector.h"

/// Finds what it is told to, in every picture. Told so before it is asked, by the test's thread.
class FakeFaceDetector final : public FaceDetector {
public:
    Result<QList<QRectF>> detect(const QImage& picture) override
    {
        if (picture.isNull())
            return Error::failed(QStringLiteral("There is no picture."));
        return faces;
    }

    Result<QList<QRectF>> faces = QList<QRectF>();
};
