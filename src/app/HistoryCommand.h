// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Prints what is in the history, newest first, without a desktop and whether or not the program is
/// resident: what `pixmallow list history` stands for. Changes nothing.
/// @param words "--json" and "--search" with what is to be found in one word behind it.
/// @return the exit code: 0, or 2 with the reason on standard error.
int runHistoryCommand(const QStringList& words);
