// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"

#include <QMenu>
#include <QSystemTrayIcon>

#include <optional>

class AppState;

/// The program's place in the tray: captures and quit. Where no tray runs, nothing is shown until
/// one comes.
class TrayItem final : public QObject {
    Q_OBJECT

public:
    TrayItem(AppState& state, const Prefs& prefs);

    /// At the icon where its place is known, else at the pointer.
    void showMenu();

    /// The middle of the icon in points of the desktop, y down; none where the tray does not tell.
    std::optional<QPointF> position() const;

    const QMenu& menu() const { return m_menu; }

private:
    void fillMenu();

    AppState& m_state;
    const Prefs& m_prefs;
    QMenu m_menu;
    QSystemTrayIcon m_icon;
};
