// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/MenuBarLabel.h"

#include <QTimer>

using namespace Qt::StringLiterals;

MenuBarLabel::MenuBarLabel(const Prefs& prefs, const Fun& fun, After after)
    : m_prefs(prefs)
    , m_fun(fun)
    , m_after(std::move(after))
    , m_told(text())
{
    connect(&m_prefs, &Prefs::changed, this, &MenuBarLabel::tellIfChanged);
    connect(&m_fun, &Fun::statsChanged, this, &MenuBarLabel::tellIfChanged);
    connect(&m_fun, &Fun::hopped, this, &MenuBarLabel::hop);
}

QString MenuBarLabel::text() const
{
    if (!m_prefs.get(Prefs::keys.trayPet))
        return {};
    return m_sparkles ? m_fun.petEmoji() + u"✨"_s : m_fun.petEmoji();
}

/// Each capture ends the sparkle in its own time, also that of a later one.
void MenuBarLabel::hop()
{
    m_sparkles = true;
    tellIfChanged();
    m_after(sparkling, this, [this] {
        m_sparkles = false;
        tellIfChanged();
    });
}

void MenuBarLabel::tellIfChanged()
{
    if (std::exchange(m_told, text()) != m_told)
        Q_EMIT changed();
}

void MenuBarLabel::afterByTimer(
    std::chrono::milliseconds time, QObject* context, std::function<void()> act)
{
    QTimer::singleShot(time, context, std::move(act));
}
