// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "doctor/DoctorFacts.h"
#include "platform/DesktopPlatform.h"

/// Shows a known pattern in a corner of each screen for a moment and captures it there.
QList<DoctorFacts::Screen> probeScreens(DesktopPlatform& platform);
