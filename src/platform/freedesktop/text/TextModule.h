// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Diagnosis.h"
#include "platform/TextRecognizer.h"

/// The functions of the module pixmallow-text.
namespace TextModule {

/// Null if the program that asks is of another version, which may have other virtual tables.
using Make = TextRecognizer* (*)(const char* version, const QStringList& languages);

constexpr const char* function = "pixmallowMakeTextRecognizer";

/// What a recogniser for these languages of the user would read with.
using FindLanguages = void (*)(const QStringList& languages, TextLanguages& found);

constexpr const char* languagesFunction = "pixmallowFindTextLanguages";

} // namespace TextModule
