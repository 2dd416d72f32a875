// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "capture/Shot.h"

/// A capture that has ended well, and where it went.
struct FinishedCapture {
    Shot shot;
    QString path {}; ///< Of the saved file; empty when none was saved.
    QString historyId {}; ///< Empty when it is in no history.
};
