// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QLocale>

/// The language of all texts. English stands in the sources and needs nothing; translations are
/// part of the program, so that a language is there or not, but never of another version.
namespace Language {

/// Has the program speak the first of these languages that it knows: its own texts, and the
/// toolkit's if those are installed. Needs the application object. Call it once, before any text
/// is read.
/// @param wanted as QLocale::uiLanguages() has them, best first.
/// @return the language spoken from now on.
QLocale install(const QStringList& wanted = QLocale::system().uiLanguages());

} // namespace Language
