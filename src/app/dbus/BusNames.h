// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/CaptureReport.h"

/// What things of ours are called on the session bus.
namespace BusNames {

QString service(); ///< The name that the resident program owns.
QString path(); ///< Of its one object, as desktops derive it from the name.
QString interface(); ///< The number at its end changes with what would break callers.

QString invalidArguments(); ///< The error of a call that makes no sense.
QString errorOf(CaptureReport::Outcome outcome); ///< Of any but one that is done.

} // namespace BusNames
