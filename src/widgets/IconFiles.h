// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Which file draws which symbol.
namespace IconFiles {

QStringList symbols();
bool has(const QString& symbol);
QString nameOf(const QString& symbol); ///< Without folder and suffix.

/// Points along the lines of writing, and so the other way where those run from right to left.
bool hasDirection(const QString& symbol);

} // namespace IconFiles
