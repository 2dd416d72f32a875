// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/CaptureReport.h"
#include "preview/Pins.h"

/// Reads image files off the main thread and pins those that are pictures. Done when all of them
/// were; else failed, with a sentence for each that was not.
Pending<CaptureReport> pinFiles(Pins& pins, const QStringList& paths);
