// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"
#include "fun/MenuBarLabel.h"
#include "widgets/Theme.h"

#include <QMenu>
#include <QSystemTrayIcon>

#include <optional>

class AppState;

/// The program's place in the tray. A click is told; the other button opens a plain menu of
/// captures, settings and quit, which trays that show menus by themselves have as well. Where no
/// tray runs, nothing is shown until one comes.
class TrayItem final : public QObject {
    Q_OBJECT

public:
    TrayItem(AppState& state, const Prefs& prefs, const Fun& fun, const Themes& themes);

    /// The middle of the icon in points of the desktop, y down; none where the tray does not tell.
    std::optional<QPointF> position() const;

    const QMenu& menu() const { return m_menu; }

Q_SIGNALS:
    void clicked();

private:
    void fillMenu();
    void adoptLabel();

    AppState& m_state;
    const Prefs& m_prefs;
    QMenu m_menu;
    const Themes& m_themes;
    MenuBarLabel m_label;
    QSystemTrayIcon m_icon;
};
