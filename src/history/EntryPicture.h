// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "capture/FinishedCapture.h"
#include "history/HistoryItem.h"

/// An entry as the capture it was made of. A private copy is no file of the user's, who saved that
/// capture nowhere; so it comes without a path. Blocks; for any thread. Fails with a sentence that
/// names the file.
Result<FinishedCapture> readEntry(const HistoryItem& item);
