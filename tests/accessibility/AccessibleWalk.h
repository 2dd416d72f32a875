// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QWidget>

/// Looks at a surface as those do who cannot see it or have no mouse: through the accessibility
/// interface, and by the Tab key. Each function returns a line for everything that is missing.
namespace AccessibleWalk {

/// "button “Copy”", for a line that can be read.
QString described(const QAccessibleInterface& control);

/// Names, roles, actions, values and states of whatever is shown, and text that nobody is told.
QStringList lacking(QWidget& surface);

/// Whether each control gets the focus by Tab or arrow keys, in the order of reading, and is seen
/// to have it. The surface is shown and active.
QStringList unreachable(QWidget& surface);

/// Everything that is shown below an object, itself included.
QList<QAccessibleInterface*> shown(QAccessibleInterface* root);

} // namespace AccessibleWalk
