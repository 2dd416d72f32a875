// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// A version that is published.
struct UpdateInfo {
    QString version; ///< Numbers between dots, such as "1.4.2".
    QString date; ///< As the feed has it; may be empty.
    QString url; ///< Of the file to download: safe, see UpdateRules::isSafe().
    QString sha256; ///< Of that file: 64 characters, lower case.
    QStringList notes; ///< What is new, a line each.

    friend bool operator==(const UpdateInfo&, const UpdateInfo&) = default;
};
