// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/ControlClient.h"

#include <QStringList>

/// The program `pixmallow-desktop`, which is looked for beside this one first and in PATH then.
namespace ResidentProgram {

/// Replaces this process by it. Returns only if that fails.
Error become(const QStringList& options);

/// Connects to the one that runs; if none does, starts it in the background and waits until it can
/// be asked, at most ten seconds.
Result<ControlClient> reach(const Folders& folders);

} // namespace ResidentProgram
