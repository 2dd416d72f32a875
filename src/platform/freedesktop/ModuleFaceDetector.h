// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FaceDetector.h"

#include <memory>
#include <mutex>

/// The detector of the module pixmallow-faces, which is loaded when faces are first looked for.
class ModuleFaceDetector final : public FaceDetector {
public:
    Result<QList<QRectF>> detect(const QImage& picture) override;

private:
    Result<void> load();

    std::mutex m_busy;
    std::unique_ptr<FaceDetector> m_loaded;
};
