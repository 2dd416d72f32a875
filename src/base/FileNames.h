// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QString>

/// How picture files are called. Existence is not looked at here.
namespace FileNames {

/// The prefix, a blank and the time: "Screenshot 2025-03-07 at 14.05.09", in the time's own zone.
QString dated(const QString& prefix, const QDateTime& time);

/// "BASE.EXT" for 1, from there on "BASE (2).EXT" and so forth.
QString numbered(const QString& base, int number, const QString& extension);

} // namespace FileNames
