// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"

#include <QTemporaryDir>

/// Somebody who has nothing yet but empty folders and preferences at their defaults.
struct TestUser {
    TestUser() { prefs.registerDefaults(); }

    QString path(const QString& name) const { return root.filePath(name); }

    QTemporaryDir root;
    Folders folders {.configuration = path(QStringLiteral("config")),
        .data = path(QStringLiteral("data/Pixmallow")),
        .pictures = root.path()};
    Prefs prefs {folders, Prefs::Watch::Nothing};
};
