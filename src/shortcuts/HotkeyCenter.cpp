// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "shortcuts/HotkeyCenter.h"

#include <limits>
#include <utility>

namespace {

HotkeyCenter* s_shared = nullptr;

} // namespace

HotkeyCenter::HotkeyCenter(Hotkeys& hotkeys)
    : m_hotkeys(hotkeys)
{
    connect(&hotkeys, &Hotkeys::pressed, this, &HotkeyCenter::fire);
}

HotkeyCenter::~HotkeyCenter()
{
    unregisterAll();
    if (s_shared == this)
        s_shared = nullptr;
}

HotkeyCenter& HotkeyCenter::shared()
{
    Q_ASSERT(s_shared);
    return *s_shared;
}

void HotkeyCenter::install()
{
    s_shared = this;
}

bool HotkeyCenter::registerCombo(const KeyCombo& combo, Action action)
{
    if (m_nextID == std::numeric_limits<std::uint32_t>::max())
        qFatal("No id is left for another shortcut.");
    const std::uint32_t id = m_nextID++;
    if (!m_hotkeys.registerHotkey(id, combo.chord()))
        return false;
    m_refs.push_back(id);
    m_actions[id] = std::move(action);
    return true;
}

void HotkeyCenter::unregisterAll()
{
    for (const auto id : std::exchange(m_refs, {}))
        m_hotkeys.unregisterHotkey(id);
    m_actions.clear();
}

void HotkeyCenter::fire(std::uint32_t id)
{
    if (const auto found = m_actions.find(id); found != m_actions.end())
        QMetaObject::invokeMethod(this, found->second, Qt::QueuedConnection);
}
