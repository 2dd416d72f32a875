// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "doctor/DoctorFacts.h"

/// What is said of one thing that was examined.
struct DoctorCheck {
    QString id; ///< The same in every version: "screen.1", "shortcut.region", "tray".
    QString title;
    QString detail; ///< What was found, whole sentences.
    QString advice {}; ///< What to do about it, whole sentences; empty where all is well.

    bool isOk() const { return advice.isEmpty(); }
};

/// What is to be thought of the facts.
namespace DoctorRules {

QList<DoctorCheck> judge(const DoctorFacts& facts);

/// @param number from 1, as the command line counts screens.
DoctorCheck judge(const DoctorFacts::Screen& screen, int number);

/// One check for each shortcut.
QList<DoctorCheck> judgeShortcuts(const DoctorFacts::Desktop& desktop);

DoctorCheck judgeText(const Result<TextLanguages>& languages, const Result<void>& reading);
DoctorCheck judge(const DoctorFacts::Sound& sound);
DoctorCheck judge(const DoctorFacts::Folder& folder);
DoctorCheck judgeSpace(const QString& folder, qint64 freeBytes);
DoctorCheck judge(const DoctorFacts::Updates& updates);

} // namespace DoctorRules
