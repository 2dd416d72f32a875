// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Hotkeys.h"
#include "platform/x11/ModifierMasks.h"
#include "platform/x11/RawKeyboard.h"

#include <QSocketNotifier>
#include <QTimer>

#include <bitset>

/// Takes keys from the whole desktop by passive grabs on the root window, over a connection that
/// nobody else listens on. Keys are meant by their place, so that no layout makes a difference.
class X11Hotkeys final : public Hotkeys {
public:
    explicit X11Hotkeys(std::shared_ptr<X11Connection> connection);

    bool registerHotkey(std::uint32_t id, const KeyChord& chord) override;
    void unregisterHotkey(std::uint32_t id) override;
    void setSeesGrabbedKeyboards(bool sees) override;

private:
    using Keys = std::bitset<256>; ///< By position.

    struct Registration {
        std::uint32_t id;
        KeyChord chord;
        std::vector<KeyPosition> positions; ///< That the server gave us.
    };

    /// The modifier state, without locks, in which a chord is pressed.
    std::uint16_t stateOf(const KeyChord& chord) const;
    std::vector<KeyPosition> grab(const KeyChord& chord);
    bool grab(KeyPosition position, std::uint16_t state);
    void release(const Registration& registration);

    void readEvents();
    void readEventsSoon(); ///< After a reply, which may have brought some that wake nobody.
    void handle(const xcb_generic_event_t& event);
    void change(const KeyChange& key);
    void followModifiers();

    Keys keysDown() const;
    void hold(Keys keys);
    void forgetReleasedKeys();

    std::shared_ptr<X11Connection> m_connection;
    QSocketNotifier m_notifier;
    RawKeyboard m_raw;
    ModifierMasks m_masks;
    std::vector<Registration> m_registrations;
    bool m_seesGrabbedKeyboards = false;
    bool m_mappingChanged = false;

    Keys m_held; ///< That do not fire before they are released.
    Keys m_downBefore; ///< When last looked at.
    QTimer m_heldTimer;
};
