// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/faces/FaceModule.h"

#include "platform/freedesktop/faces/DlibFaceDetector.h"

#include <cstring>

extern "C" Q_DECL_EXPORT FaceDetector* pixmallowMakeFaceDetector(const char* version)
{
    if (std::strcmp(version, PIXMALLOW_VERSION) != 0)
        return nullptr;
    return new DlibFaceDetector;
}

static_assert(std::is_same_v<decltype(&pixmallowMakeFaceDetector), FaceModule::Make>);
