// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PlatformWords.h"
#include "platform/ScreenCapture.h"
#include "platform/Workspace.h"
#include "widgets/GlassButton.h"
#include "widgets/TextLabel.h"

#include <QTimer>

#include <functional>

class SymbolHero;

/// Tells a newcomer how to begin; or, while the program may not see the screen, what to do about
/// it. Looks every second which of the two it is, as long as it is shown.
class PermissionView final : public QWidget {
    Q_OBJECT

public:
    struct Sources {
        const Themes& themes;
        const ScreenCapture& capture;
        Workspace& workspace;
        const PlatformWords& words;
        std::function<QString()> shortcut; ///< Of a region as it is now; empty if it has none.
        std::function<bool()> hasTray; ///< Whether the desktop shows icons of programs.
    };

    explicit PermissionView(const Sources& sources, QWidget* parent = nullptr);

    bool isGranted() const { return m_granted; }
    QSize sizeHint() const override;

Q_SIGNALS:
    void closeWanted();
    void restartWanted();

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void refresh();
    void tell();
    QString explanation() const;

    const Sources m_sources;
    bool m_granted;
    QTimer m_timer;
    SymbolHero* m_hero;
    TextLabel* m_title;
    TextLabel* m_text;
    GlassButton* m_start;
    GlassButton* m_settings;
    GlassButton* m_restart;
};
