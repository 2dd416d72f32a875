// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Folders.h"
#include "base/Prefs.h"
#include "doctor/DoctorFacts.h"
#include "platform/Hotkeys.h"

/// Finds out all that DoctorFacts tell. Takes some seconds, in which the event loop runs, and shows
/// a pattern on each screen; changes nothing that lasts.
class Examination final {
public:
    struct Sources {
        const Folders& folders;
        const Prefs& prefs;
        std::function<bool()> hasTray;
        bool online = false; ///< Whether the update address may be asked.
    };

    explicit Examination(Sources sources);

    /// @param why there is no desktop; empty where there is one, and a QGuiApplication on it.
    DoctorFacts run(const QString& noDesktop) const;

private:
    Result<DoctorFacts::Desktop> desktop() const;
    void addShortcuts(DoctorFacts::Desktop& facts, Hotkeys& hotkeys) const;
    QList<DoctorFacts::Folder> folders() const;
    DoctorFacts::Updates updates() const;

    const Sources m_sources;
};
