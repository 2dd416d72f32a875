// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/KeyCodes.h"

#include <QObject>

/// Shortcuts that reach this program whichever program has the keyboard.
class Hotkeys : public QObject {
    Q_OBJECT

public:
    /// Whether the chord is now ours. Refused, too, is one that is registered already under
    /// whatever id, and one that no keyboard has.
    /// @param id not in use.
    virtual bool registerHotkey(std::uint32_t id, const KeyChord& chord) = 0;

    /// Gives the chord back; nothing happens for an unknown id.
    virtual void unregisterHotkey(std::uint32_t id) = 0;

    /// Whether chords are also heard of while an open menu or the like has the keyboard to itself.
    /// Off at first: it takes listening to all keys that are pressed.
    virtual void setSeesGrabbedKeyboards(bool sees) = 0;

Q_SIGNALS:
    /// Once for each press, however long the key is held. Locks such as Caps Lock make no
    /// difference.
    void pressed(std::uint32_t id);
};
