// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

/// Cleans up after a virtual desktop when this process is gone, even if it and all its children
/// were killed at once: a shell outside of the process tree that wakes when its end of a pipe
/// closes. It ends every process whose environment has XDG_RUNTIME_DIR in the desktop's folder,
/// which only what was started in that desktop has, and removes the folder and what a killed server
/// left.
class Janitor final {
public:
    Janitor() = default;
    ~Janitor() { finish(); }
    Janitor(const Janitor&) = delete;
    Janitor& operator=(const Janitor&) = delete;

    /// Guards the folder of a desktop, whose runtime folder is `runtime` in it. When the server
    /// runs the file `server` in it should hold its display number and its process id.
    Result<void> guard(const QString& directory);

    /// Has it clean up now and waits until it has.
    void finish();

private:
    QString m_directory;
    int m_lifeline = -1; ///< Nobody writes; it closes with this process.
};
