// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/CaptureReport.h"
#include "base/Pending.h"
#include "capture/FinishedCapture.h"

#include <functional>

/// Reads image files off the main thread and shows those that are pictures, each with its path.
/// Done when all of them were; else failed, with a sentence for each that was not.
Pending<CaptureReport> openFiles(
    const QStringList& paths, std::function<void(const FinishedCapture&)> show);
