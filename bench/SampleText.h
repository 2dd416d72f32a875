// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Text that reads like somebody's work at first sight, the same on every run.
namespace SampleText {

/// Lines of a program with comments, of 0 to 90 characters.
QStringList code(int lines, quint32 seed);

/// Sentences of plain words.
QString prose(int words, quint32 seed);

} // namespace SampleText
