// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Displays.h"
#include "platform/ScreenCapture.h"

/// The seams to the operating system that need no window of ours: all that a one-shot capture uses.
struct CapturePlatform {
    std::unique_ptr<Displays> displays;
    std::unique_ptr<ScreenCapture> capture;
};

/// Whether the process captures once and goes, or stays and may prepare for what comes.
enum class Residency { OneShot, Resident };

/// Connects to the desktop of this session; the one place that chooses a back end. Fails with a
/// sentence for the user when there is no desktop to connect to.
Result<CapturePlatform> makeCapturePlatform(Residency residency);
