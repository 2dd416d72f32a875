// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Pending.h"

/// The desktop around the program: its file manager, and the programs that files go to. All of it
/// happens while this program goes on; what did not work is told by a sentence for the user.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// Shows a file selected in the file manager, or at least its folder.
    virtual Pending<void> reveal(const QString& path) = 0;
    virtual Pending<void> open(const QString& fileOrFolder) = 0;

    /// Begins a mail with a file attached.
    virtual Pending<void> mail(const QString& path) = 0;
    /// Has the user choose the program that a file is opened with.
    virtual Pending<void> openWith(const QString& path) = 0;

    /// Shows where the user decides which program may see the screen, or the settings as a whole.
    virtual Pending<void> openPermissionSettings() = 0;

    /// Whether the desktop starts this program when the user logs in.
    virtual bool startsAtLogin() const = 0;
    virtual Result<void> setStartsAtLogin(bool starts) = 0;

    /// Starts this program again in its own place.
    virtual void relaunch() = 0;
};
