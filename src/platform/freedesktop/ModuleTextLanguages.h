// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Diagnosis.h"

/// What the module pixmallow-text would read with; fails where there is no such module.
/// @param languages of the user, best first, as QLocale::uiLanguages() has them.
Result<TextLanguages> moduleTextLanguages(const QStringList& languages);
