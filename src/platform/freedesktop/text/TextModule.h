// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/TextRecognizer.h"

/// The one function of the module pixmallow-text.
namespace TextModule {

/// Null if the program that asks is of another version, which may have other virtual tables.
using Make = TextRecognizer* (*)(const char* version, const QStringList& languages);

constexpr const char* function = "pixmallowMakeTextRecognizer";

} // namespace TextModule
