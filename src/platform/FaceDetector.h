// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QImage>
#include <QList>
#include <QRectF>

/// Finds the faces in pictures. Everything here blocks, so it is called on worker threads; several
/// of them at once wait for each other.
class FaceDetector {
public:
    virtual ~FaceDetector() = default;

    /// One box per face that looks towards the camera, from forehead to chin, in pixels of the
    /// picture (y down) and within it. A picture without faces is no failure; fails with a sentence
    /// for the user where faces cannot be looked for.
    virtual Result<QList<QRectF>> detect(const QImage& picture) = 0;
};
