// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QStringList>

/// Text that is to fit into few lines.
namespace TextLines {

/// The text in at most so many lines of this width in points. Breaks between words, and within one
/// that is too long for a line; what does not fit ends in an ellipsis.
QStringList fitting(const QString& text, const QFont& font, int width, int mostLines);

} // namespace TextLines
