// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/CallLater.h"
#include "fun/Fun.h"
#include "fun/FxPanel.h"
#include "skins/SynthSounds.h"
#include "widgets/FloatingPanel.h"

#include <memory>

/// Shows what was unlocked, one after the other, each for a moment, with confetti and a sound. It
/// stays away while a capture is being taken and while a program has the screen to itself. Lives on
/// the main thread.
class PopUps final : public QObject {
    Q_OBJECT

public:
    struct Means {
        Surroundings surroundings;
        const Displays& displays;
        SynthSounds& sounds;
        Fun& fun;
        std::function<bool()> isFullScreen; ///< Whether a program has the screen to itself.
        CallLater wait = callLater;
    };

    static constexpr std::chrono::milliseconds shown = std::chrono::milliseconds(4500);
    static constexpr std::chrono::milliseconds between = std::chrono::milliseconds(400);
    /// Until it is tried again where it may not be seen.
    static constexpr std::chrono::milliseconds patience = std::chrono::seconds(5);

    explicit PopUps(Means means);
    ~PopUps() override;

    void captureBegins(); ///< One that is seen goes at once and comes again later.
    void captureEnded();

    const FloatingPanel* panel() const { return m_panel.get(); } ///< Null while none is shown.

Q_SIGNALS:
    void galleryWanted(); ///< The user clicked on one.

private:
    void later(std::chrono::milliseconds time);
    void next();
    void show(const FunPopUp& popUp);
    void celebrate(QRect card);
    void close();

    const Means m_means;
    std::optional<FunPopUp> m_current; ///< Shown, or to be shown again.
    std::unique_ptr<FloatingPanel> m_panel;
    std::unique_ptr<FxPanel> m_confetti;
    unsigned m_turn = 0; ///< Of the latest wait; earlier ones no longer count.
    quint32 m_celebrated = 0;
    bool m_isCapturing = false;
};
