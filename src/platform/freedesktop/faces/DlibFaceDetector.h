// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FaceDetector.h"

#include <memory>

/// Finds faces with dlib's detector of histograms of gradients. It misses profiles, but takes no
/// text and hardly any icon for a face, unlike the cascades that other programs use.
class DlibFaceDetector final : public FaceDetector {
public:
    DlibFaceDetector();
    ~DlibFaceDetector() override;

    Result<QList<QRectF>> detect(const QImage& picture) override;

private:
    struct Engine;
    std::unique_ptr<Engine> m_engine;
};
