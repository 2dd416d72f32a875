// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QIcon>

/// The picture of the program's item in the tray, drawn for whatever size and scale the tray asks.
namespace TrayIcon {

/// @param emoji one, or another one behind it, which is drawn small in the corner; empty for the
/// program's symbol
QIcon of(const QString& emoji, const Theme& theme);

} // namespace TrayIcon
