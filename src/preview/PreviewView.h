// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"
#include "capture/ShotActions.h"
#include "fun/FunRules.h"
#include "preview/PreviewCountdown.h"
#include "widgets/Theme.h"

#include <QTimer>
#include <QWidget>

class GlassButton;
class PreviewThumbnail;
class TextLabel;

/// What a preview card shows: the picture, what is known of it, what can be done with it, and how
/// long it stays.
class PreviewView final : public QWidget {
    Q_OBJECT

public:
    struct Content {
        FinishedCapture capture;
        QString info; ///< One line about it.
        std::optional<PetReaction> reaction;
        QString revealTitle; ///< How the button that shows the file in its folder is called.
    };

    PreviewView(const Themes& themes, const Prefs& prefs, ShotActions actions, Content content);

    const QString& status() const { return m_status; }

Q_SIGNALS:
    void closeRequested();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// While it lives, the countdown rests.
    using Hold = std::shared_ptr<void>;

    QLayout* header();
    QLayout* actionRow();
    GlassButton* addAction(
        QLayout& row, const QString& symbol, const QString& title, std::function<void()> action);
    void makeThumbnail();
    void edit();
    void drag();
    void follow(ShotActions::Told told);
    void setStatus(const QString& status);
    void tick();
    Hold hold();

    const Themes& m_themes;
    const Prefs& m_prefs;
    const ShotActions m_actions;
    const Content m_content;
    PreviewThumbnail* m_thumbnail = nullptr;
    TextLabel* m_hint;
    QString m_status; ///< Of the last action; empty when it has been seen.
    PreviewCountdown m_countdown;
    QTimer m_tick;
    QTimer m_statusSeen;
    std::weak_ptr<void> m_held;
};
