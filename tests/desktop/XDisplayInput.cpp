// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/Reply.h"
#include "tests/desktop/XDisplay.h"

#include <QList>
#include <QThread>

#include <stdexcept>
#include <xcb/xtest.h>
#include <xkbcommon/xkbcommon.h>

namespace {

struct Key {
    xcb_keycode_t code = 0;
    bool shifted = false; ///< The symbol is on the key's second level.
};

constexpr std::pair<const char*, const char*> modifiers[] = {
    {"ctrl", "Control_L"},
    {"shift", "Shift_L"},
    {"alt", "Alt_L"},
    {"altgr", "ISO_Level3_Shift"},
    {"super", "Super_L"},
};

xkb_keysym_t symbolOf(const QByteArray& name)
{
    QByteArray full = name;
    for (const auto& [shorter, longer] : modifiers)
        if (name == shorter)
            full = longer;
    const xkb_keysym_t symbol = xkb_keysym_from_name(full.constData(), XKB_KEYSYM_NO_FLAGS);
    if (symbol == XKB_KEY_NoSymbol)
        throw std::invalid_argument("no key has the name " + name.toStdString());
    return symbol;
}

/// Reads the layout anew each time: a test may change it.
Key keyOf(xcb_connection_t* connection, xkb_keysym_t symbol)
{
    const xcb_setup_t& setup = *xcb_get_setup(connection);
    const auto cookie = xcb_get_keyboard_mapping(
        connection, setup.min_keycode, quint8(setup.max_keycode - setup.min_keycode + 1));
    const auto map = owned(xcb_get_keyboard_mapping_reply(connection, cookie, nullptr));
    if (map) {
        const xcb_keysym_t* const symbols = xcb_get_keyboard_mapping_keysyms(map.get());
        const int perKey = map->keysyms_per_keycode;
        for (int level = 0; level < qMin(2, perKey); ++level)
            for (int key = 0; key < int(map->length) / perKey; ++key)
                if (symbols[key * perKey + level] == symbol)
                    return {xcb_keycode_t(setup.min_keycode + key), level == 1};
    }
    throw std::invalid_argument("no key gives the symbol " + std::to_string(symbol));
}

} // namespace

void XDisplay::send(int event, int detail, QPoint position)
{
    xcb_test_fake_input(connection(), quint8(event), quint8(detail), XCB_CURRENT_TIME,
        screen().root, qint16(position.x()), qint16(position.y()), 0);
    sync();
}

xcb_keycode_t XDisplay::codeOf(const QByteArray& key) const
{
    return keyOf(connection(), symbolOf(key)).code;
}

void XDisplay::key(const QByteArray& chord)
{
    std::vector<xcb_keycode_t> held;
    const QList<QByteArray> names = chord.split('+');
    for (const QByteArray& name : names) {
        const Key key = keyOf(connection(), symbolOf(name));
        if (key.shifted && &name == &names.back() && !names.contains("shift"))
            held.push_back(keyOf(connection(), XKB_KEY_Shift_L).code);
        held.push_back(key.code);
    }
    for (const xcb_keycode_t code : held)
        pressKeyCode(code);
    for (auto code = held.rbegin(); code != held.rend(); ++code)
        releaseKeyCode(*code);
}

void XDisplay::typeKeys(const QByteArray& text)
{
    for (const char character : text) {
        char name[32];
        const xkb_keysym_t symbol = character == '\n' ? XKB_KEY_Return
            : character == '\t'                       ? XKB_KEY_Tab
                                                      : quint8(character); // Latin-1 is the same.
        xkb_keysym_get_name(symbol, name, sizeof name);
        key(name);
    }
}

void XDisplay::drag(QPoint from, QPoint to, std::chrono::milliseconds pause)
{
    constexpr int steps = 8;
    moveTo(from);
    press();
    for (int step = 1; step <= steps; ++step) {
        moveTo(from + (to - from) * step / steps);
        QThread::msleep(ulong(pause.count()));
    }
    release();
}
