// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// The desktop around the program: its file manager and the programs for files.
class Workspace {
public:
    virtual ~Workspace() = default;

    /// Shows a file selected in the file manager, or at least its folder.
    virtual void reveal(const QString& path) = 0;
    virtual void open(const QString& fileOrFolder) = 0;

    /// Starts this program again in its own place.
    virtual void relaunch() = 0;
};
