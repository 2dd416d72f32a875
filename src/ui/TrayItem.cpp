// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/TrayItem.h"

#include "app/AppState.h"
#include "base/Words.h"
#include "ui/TrayIcon.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

/// Adds a shortcut in signs behind the title, and in words for those who do not know the signs or
/// have them read out.
void label(QAction& action, const KeyCombo& shortcut)
{
    const QString words = u"%1, %2"_s.arg(action.text(), shortcut.spelled());
    action.setText(action.text() + u'\t' + shortcut.display()); // Menus put it at the right.
    action.setToolTip(words);
    action.setStatusTip(words);
    action.setWhatsThis(words);
}

} // namespace

TrayItem::TrayItem(AppState& state, const Prefs& prefs, const Fun& fun, const Themes& themes)
    : m_state(state)
    , m_prefs(prefs)
    , m_themes(themes)
    , m_label(prefs, fun)
{
    m_menu.setToolTipsVisible(true);
    fillMenu();
    m_icon.setToolTip(u"Pixmallow"_s);
    m_icon.setContextMenu(&m_menu);
    connect(&m_label, &MenuBarLabel::changed, this, &TrayItem::adoptLabel);
    connect(&m_themes, &Themes::changed, this, &TrayItem::adoptLabel);
    adoptLabel();
    connect(&m_icon, &QSystemTrayIcon::activated, this,
        [this](QSystemTrayIcon::ActivationReason reason) {
            if (reason == QSystemTrayIcon::Trigger)
                Q_EMIT clicked();
        });
    // Delay and shortcuts stand in the titles. Some trays copy a menu once, so it changes in place.
    connect(&m_prefs, &Prefs::changed, this, [this](const QString& key) {
        if (key == QLatin1String(Prefs::keys.delaySeconds.name) || key.startsWith(u"hk."_s))
            fillMenu();
    });
    m_icon.show();
}

void TrayItem::fillMenu()
{
    m_menu.clear();
    for (const auto& info : captureKinds) {
        if (!m_state.isAvailable(info.kind))
            continue;
        QString title = Words::tr(info.title);
        if (title.contains(u"%1"_s))
            title = title.arg(m_prefs.get(Prefs::keys.delaySeconds));
        auto* action
            = m_menu.addAction(title, this, [this, kind = info.kind] { m_state.capture(kind); });
        if (const auto shortcut = m_state.hotkey(info.kind))
            label(*action, *shortcut);
    }
    m_menu.addSeparator();
    m_menu.addAction(tr("Settings…"), &m_state, &AppState::settingsRequested);
    m_menu.addAction(tr("Quit Pixmallow"), qApp, &QCoreApplication::quit);
}

void TrayItem::adoptLabel()
{
    m_icon.setIcon(TrayIcon::of(m_label.text(), m_themes.current()));
}

std::optional<QPointF> TrayItem::position() const
{
    const QRect icon = m_icon.geometry();
    return icon.isValid() ? std::optional(QRectF(icon).center()) : std::nullopt;
}
