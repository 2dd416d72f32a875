// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QtGlobal>

/// Loads a part of the program that stays out of it until it is needed, because what it stands on
/// takes long to load, and finds a function in it. The file is lib<name>.so beside the program, or
/// in the folder of modules where it is installed. Modules stay loaded.
Result<QFunctionPointer> moduleFunction(const QString& name, const char* function);
