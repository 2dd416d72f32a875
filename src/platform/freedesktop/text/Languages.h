// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Which of Tesseract's models to read with. Models are named as their files are: "eng", "chi_sim".
namespace Languages {

struct Choice {
    QStringList usual; ///< Every picture is read with these together.
    QStringList others; ///< For lines that make no sense so.
};

/// English and what the user speaks, or whatever there is. Few at once: each takes memory and time,
/// and every further one finds its own letters where there are none.
/// @param spoken languages of the user, best first: "de-AT", "zh-Hans-CN".
Choice choose(const QStringList& spoken, const QStringList& installed);

/// English and what the user speaks, where there is no model for it.
QStringList notInstalled(const QStringList& spoken, const QStringList& installed);

/// What to install, as a sentence for a user who has no model at all.
QString missing(const QStringList& spoken);

} // namespace Languages
