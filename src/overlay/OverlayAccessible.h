// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/OverlayModel.h"

#include <QAccessible>
#include <QWindow>

/// What a selection tells those who do not see it: the keys when it begins, then each selection, or
/// where the pointer is, as it changes.
namespace OverlayAccessible {

/// "640 × 400 at 120, 80", in pixels of the screen; the pointer's place where nothing is selected.
QString told(const OverlayScene& scene);

/// A window that stands for a selection. Its title is its name, the property its description.
QAccessibleInterface* interfaceOf(QWindow& window);

/// Has it read out, if somebody listens.
void tell(QWindow& window, const OverlayScene& scene);

} // namespace OverlayAccessible
