// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Pending.h"
#include "capture/FinishedCapture.h"

#include <functional>

class QWidget;

/// What can be done with a capture, wherever it is shown. An empty function is not offered. Those
/// that answer tell what became of it, in a few words for the user; nothing when it was cancelled.
struct ShotActions {
    using Told = Pending<QString>;

    std::function<void(FinishedCapture)> edit;
    std::function<Told(FinishedCapture)> copy;
    std::function<Told(FinishedCapture, QWidget* asking)> saveAs;
    std::function<void(FinishedCapture)> pin;
    std::function<Told(FinishedCapture, QWidget* button)> share; ///< Opens its menu at a button.
    std::function<void(FinishedCapture)> reveal;

    /// A file that shows the capture: the saved one, else a temporary PNG. None if there is none.
    std::function<std::optional<QString>(FinishedCapture)> file;
};
