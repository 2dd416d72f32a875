// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What differs between builds: where their updates come from and what they are called.
struct UpdateSource {
    QString feed; ///< An address.
    QString homePage; ///< An address.
    QString member; ///< Of the feed, that describes files for this system.
    QString fileSuffix; ///< Of these files, such as ".dmg".
    QString system; ///< As the server is told.
    QString version; ///< That is running.

    /// That of this build; PIXMALLOW_UPDATE_FEED in the environment replaces the feed.
    static UpdateSource ofBuild();

    QByteArray userAgent() const; ///< "Pixmallow/1.3.0 (Mac; +https://pixmallow.example)"
};
