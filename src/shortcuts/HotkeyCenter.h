// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Hotkeys.h"
#include "shortcuts/KeyCombo.h"

#include <functional>
#include <map>
#include <vector>

/// The registry of global shortcuts and of what each of them does. It is never patched: whoever
/// changes a shortcut unregisters all and registers all again. Lives on the main thread.
class HotkeyCenter final : public QObject {
public:
    using Action = std::function<void()>;

    explicit HotkeyCenter(Hotkeys& hotkeys);
    ~HotkeyCenter() override;

    static HotkeyCenter& shared(); ///< The one that install() was called on.
    void install();

    /// Whether the system gave us the shortcut; if not, it does nothing. Each call takes an id, the
    /// first one 1; no id is ever taken twice.
    bool registerCombo(const KeyCombo& combo, Action action);
    void unregisterAll();

    /// Has the action of an id run soon, on the main thread but not before the caller has returned.
    /// Nothing happens for an id without one.
    void fire(std::uint32_t id);

private:
    Hotkeys& m_hotkeys;
    std::vector<std::uint32_t> m_refs; ///< Ids that the system accepted, in their order.
    std::map<std::uint32_t, Action> m_actions;
    std::uint32_t m_nextID = 1;
};
