// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FaceDetector.h"

/// The one function of the module pixmallow-faces.
namespace FaceModule {

/// Null if the program that asks is of another version, which may have other virtual tables.
using Make = FaceDetector* (*)(const char* version);

constexpr const char* function = "pixmallowMakeFaceDetector";

} // namespace FaceModule
