// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Hotkeys.h"

#include <QList>
#include <QMap>

/// Remembers what is registered; refuses what it is told to, and what it holds already.
class FakeHotkeys final : public Hotkeys {
public:
    bool registerHotkey(std::uint32_t id, const KeyChord& chord) override
    {
        if (refused.contains(chord) || registered.values().contains(chord))
            return false;
        registered.insert(id, chord);
        return true;
    }
    void unregisterHotkey(std::uint32_t id) override { registered.remove(id); }
    void setSeesGrabbedKeyboards(bool sees) override { seesGrabbedKeyboards = sees; }

    /// As the system does when a shortcut is pressed.
    void press(std::uint32_t id) { Q_EMIT pressed(id); }

    QMap<std::uint32_t, KeyChord> registered; ///< By id.
    QList<KeyChord> refused;
    bool seesGrabbedKeyboards = false;
};
