// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

/// The entry by which a desktop starts the program when the user logs in; see
/// "Desktop Application Autostart" of freedesktop.org.
namespace Autostart {

/// Whether there is an entry that is not switched off.
/// @param folder of the user's entries
bool isOn(const QString& folder);

/// Writes the entry, or removes it.
/// @param program that is started, as an absolute path
Result<void> set(const QString& folder, const QString& program, bool on);

/// Where the desktop looks for the user's entries.
QString userFolder();

} // namespace Autostart
