// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/CaptureReport.h"
#include "base/Pending.h"
#include "capture/FinishedCapture.h"
#include "history/HistoryItem.h"

#include <functional>

class Editors;

/// Shows a picture, or does else with it what was asked for; answers when that is done.
using UsePicture = std::function<Pending<void>(FinishedCapture)>;

UsePicture editingIn(Editors& editors);

/// Reads image files off the main thread and uses those that are pictures, each with its path. Done
/// when all of them were; else not found or failed, with a sentence for each that was not.
Pending<CaptureReport> openFiles(const QStringList& paths, UsePicture use);

/// The same for the picture of an entry of the history.
Pending<CaptureReport> openEntry(const HistoryItem& item, UsePicture use);
