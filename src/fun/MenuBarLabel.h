// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/Fun.h"

#include <chrono>

/// What the program's item in the tray shows: the pet, which sparkles for a moment after each
/// capture, or a symbol where the user wants no pet there.
class MenuBarLabel final : public QObject {
    Q_OBJECT

public:
    /// Has something done after some time, unless the context is gone by then.
    using After
        = std::function<void(std::chrono::milliseconds, QObject* context, std::function<void()>)>;

    static constexpr std::chrono::milliseconds sparkling {1400};

    MenuBarLabel(const Prefs& prefs, const Fun& fun, After after = &MenuBarLabel::afterByTimer);

    /// The emoji, with one more while it sparkles; empty where the symbol is to be shown.
    QString text() const;

Q_SIGNALS:
    void changed();

private:
    static void afterByTimer(
        std::chrono::milliseconds time, QObject* context, std::function<void()> act);

    void hop();
    void tellIfChanged();

    const Prefs& m_prefs;
    const Fun& m_fun;
    const After m_after;
    bool m_sparkles = false;
    QString m_told; ///< The text when it was last told of.
};
