// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/X11Hotkeys.h"

#include "platform/x11/Xkb.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {

constexpr int allModifiers = 0xff; // Above them are the mouse buttons and the layout.

/// The state itself and with each combination of the locks.
std::vector<std::uint16_t> withLocks(std::uint16_t state, std::uint16_t locks)
{
    std::vector<std::uint16_t> states;
    for (int some = locks; some; some = (some - 1) & locks)
        states.push_back(std::uint16_t(state | some));
    states.push_back(state);
    return states;
}

} // namespace

X11Hotkeys::X11Hotkeys(std::shared_ptr<X11Connection> connection)
    : m_connection(std::move(connection))
    , m_notifier(xcb_get_file_descriptor(m_connection->xcb()), QSocketNotifier::Read)
    , m_raw(m_connection)
{
    Xkb::start(*m_connection);
    m_masks = ModifierMasks::read(*m_connection);
    m_heldTimer.setInterval(50ms);
    connect(&m_heldTimer, &QTimer::timeout, this, &X11Hotkeys::forgetReleasedKeys);
    connect(&m_notifier, &QSocketNotifier::activated, this, &X11Hotkeys::readEvents);
    readEventsSoon();
}

bool X11Hotkeys::registerHotkey(std::uint32_t id, const KeyChord& chord)
{
    const bool isHeld = std::ranges::any_of(m_registrations, [&](const Registration& other) {
        return other.chord.keyCode == chord.keyCode && stateOf(other.chord) == stateOf(chord);
    });
    if (isHeld || chord.modifiers & ~KeyChord::AllModifiers)
        return false;
    const auto positions = grab(chord);
    const Keys down = keysDown();
    readEventsSoon();
    if (positions.empty() || xcb_connection_has_error(m_connection->xcb()))
        return false;
    for (const auto position : positions)
        if (down[position]) // Its repeats are no press of this shortcut.
            hold(Keys().set(position));
    m_registrations.push_back({id, chord, positions});
    return true;
}

void X11Hotkeys::unregisterHotkey(std::uint32_t id)
{
    std::erase_if(m_registrations, [&](const Registration& registration) {
        if (registration.id == id)
            release(registration);
        return registration.id == id;
    });
}

void X11Hotkeys::setSeesGrabbedKeyboards(bool sees)
{
    if (sees == m_seesGrabbedKeyboards)
        return;
    m_seesGrabbedKeyboards = sees;
    m_raw.setEnabled(sees);
    readEventsSoon();
}

std::uint16_t X11Hotkeys::stateOf(const KeyChord& chord) const
{
    const std::pair<KeyChord::Modifier, std::uint16_t> bits[]
        = {{KeyChord::Shift, XCB_MOD_MASK_SHIFT}, {KeyChord::Control, XCB_MOD_MASK_CONTROL},
            {KeyChord::Option, m_masks.alt}, {KeyChord::Command, m_masks.super}};
    std::uint16_t state = 0;
    for (const auto& [modifier, bit] : bits)
        if (chord.modifiers & modifier)
            state |= bit;
    return state;
}

std::vector<KeyPosition> X11Hotkeys::grab(const KeyChord& chord)
{
    auto positions = keyPositions(chord.keyCode);
    std::erase_if(positions, [&](KeyPosition position) { return !grab(position, stateOf(chord)); });
    return positions;
}

/// All or nothing: a shortcut that some lock switches off is worse than none.
bool X11Hotkeys::grab(KeyPosition position, std::uint16_t state)
{
    xcb_connection_t* xcb = m_connection->xcb();
    const auto states = withLocks(state, m_masks.locks);
    std::vector<xcb_void_cookie_t> asked;
    for (const auto each : states)
        asked.push_back(xcb_grab_key_checked(xcb, 0, m_connection->root(), each, position,
            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    std::vector<std::uint16_t> granted;
    for (std::size_t i = 0; i < states.size(); ++i)
        if (!owned(xcb_request_check(xcb, asked[i])))
            granted.push_back(states[i]);
    if (granted.size() == states.size())
        return true;
    for (const auto each : granted)
        xcb_ungrab_key(xcb, position, m_connection->root(), each);
    xcb_flush(xcb);
    return false;
}

void X11Hotkeys::release(const Registration& registration)
{
    for (const auto position : registration.positions)
        for (const auto state : withLocks(stateOf(registration.chord), m_masks.locks))
            xcb_ungrab_key(m_connection->xcb(), position, m_connection->root(), state);
    // A round trip: when it returns, the next press already goes to whoever has the keyboard.
    owned(xcb_get_input_focus_reply(
        m_connection->xcb(), xcb_get_input_focus(m_connection->xcb()), nullptr));
}

void X11Hotkeys::readEventsSoon()
{
    QMetaObject::invokeMethod(this, &X11Hotkeys::readEvents, Qt::QueuedConnection);
}

void X11Hotkeys::readEvents()
{
    while (const auto event = owned(xcb_poll_for_event(m_connection->xcb())))
        handle(*event);
    if (m_mappingChanged)
        followModifiers();
    if (xcb_connection_has_error(m_connection->xcb())) { // It would wake us again and again.
        m_notifier.setEnabled(false);
        m_heldTimer.stop();
    }
}

void X11Hotkeys::handle(const xcb_generic_event_t& event)
{
    const int type = event.response_type & 0x7f;
    if (type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE) {
        const auto& key = reinterpret_cast<const xcb_key_press_event_t&>(event);
        change(KeyChange {type == XCB_KEY_PRESS, key.detail, key.state});
    } else if (type == XCB_MAPPING_NOTIFY || Xkb::isNewMapping(*m_connection, event)) {
        m_mappingChanged = true;
    } else if (const auto key = m_raw.read(event)) {
        change(*key); // Comes before the one of the grab, if there is that one as well.
    }
}

void X11Hotkeys::change(const KeyChange& key)
{
    if (!key.isPress) {
        m_held.reset(key.position);
        return;
    }
    const int state = key.modifiers & allModifiers & ~m_masks.locks;
    const auto found = std::ranges::find_if(m_registrations, [&](const Registration& each) {
        return stateOf(each.chord) == state
            && std::ranges::find(each.positions, key.position) != each.positions.end();
    });
    if (found == m_registrations.end() || m_held[key.position])
        return;
    hold(Keys().set(key.position));
    Q_EMIT pressed(found->id);
}

/// Which bit of the state is Alt or Num Lock is up to the keyboard, and so changes with it.
void X11Hotkeys::followModifiers()
{
    m_mappingChanged = false;
    if (const auto masks = ModifierMasks::read(*m_connection); masks != m_masks) {
        for (const auto& registration : m_registrations)
            release(registration);
        m_masks = masks;
        for (auto& registration : m_registrations)
            registration.positions = grab(registration.chord);
    }
    readEventsSoon();
}

X11Hotkeys::Keys X11Hotkeys::keysDown() const
{
    xcb_connection_t* xcb = m_connection->xcb();
    const auto keymap = owned(xcb_query_keymap_reply(xcb, xcb_query_keymap(xcb), nullptr));
    Keys keys;
    for (std::size_t i = 0; keymap && i < keys.size(); ++i)
        keys[i] = keymap->keys[i / 8] >> i % 8 & 1;
    return keys;
}

void X11Hotkeys::hold(Keys keys)
{
    m_held |= keys;
    m_downBefore |= keys;
    if (m_held.any())
        m_heldTimer.start();
}

/// The release of a key does not always come to us: not of one that was down when it was
/// registered, nor after certain switches of the screen. Twice up in a row means that no event on
/// its way can tell otherwise.
void X11Hotkeys::forgetReleasedKeys()
{
    const Keys down = keysDown();
    m_held &= down | m_downBefore;
    m_downBefore = down;
    if (m_held.none())
        m_heldTimer.stop();
    readEvents();
}
