// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Prints the text of picture files, without a desktop and whether or not the program is resident:
/// what `pixmallow text` stands for.
/// @param words the files; "--json" among them, unless after "--", asks for a line of JSON for
/// each.
/// @return the exit code: 0 if all files had text, else 2, with the reason on standard error.
int runTextCommand(QStringList words);
