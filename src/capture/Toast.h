// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/CallLater.h"
#include "capture/ToastMessage.h"
#include "widgets/FloatingPanel.h"

#include <memory>

/// Shows one short notice at a time in the bottom right corner of the screen under the pointer. A
/// new one replaces the one still shown at once. Lives on the main thread.
class Toast final : public QObject {
    Q_OBJECT

public:
    explicit Toast(const Surroundings& surroundings, CallLater wait = callLater);

    /// Closes by itself when its time is over.
    void show(const ToastMessage& message);

private:
    void close(unsigned turn);

    Surroundings m_surroundings;
    CallLater m_callLater;
    std::unique_ptr<FloatingPanel> m_panel; ///< None while nothing is shown.
    unsigned m_turn = 0; ///< Of the newest notice; the time of an earlier one no longer counts.
};
