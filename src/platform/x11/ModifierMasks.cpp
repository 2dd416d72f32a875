// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/ModifierMasks.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>

namespace {

// From the protocol's list of keysyms.
enum : xcb_keysym_t {
    ScrollLock = 0xff14,
    NumLock = 0xff7f,
    AltLeft = 0xffe9,
    AltRight = 0xffea,
    SuperLeft = 0xffeb,
    SuperRight = 0xffec
};

constexpr int modifierCount = 8;

/// The symbols of the keys that act as each of the modifiers.
std::array<std::vector<xcb_keysym_t>, modifierCount> modifierSymbols(xcb_connection_t* xcb)
{
    const xcb_setup_t& setup = *xcb_get_setup(xcb);
    const xcb_keycode_t first = setup.min_keycode;
    const auto count = std::uint8_t(setup.max_keycode - first + 1);
    const auto modifiersAsked = xcb_get_modifier_mapping(xcb);
    const auto symbolsAsked = xcb_get_keyboard_mapping(xcb, first, count);
    const auto modifiers = owned(xcb_get_modifier_mapping_reply(xcb, modifiersAsked, nullptr));
    const auto symbols = owned(xcb_get_keyboard_mapping_reply(xcb, symbolsAsked, nullptr));
    std::array<std::vector<xcb_keysym_t>, modifierCount> result;
    if (!modifiers || !symbols)
        return result;

    const xcb_keycode_t* keys = xcb_get_modifier_mapping_keycodes(modifiers.get());
    const xcb_keysym_t* table = xcb_get_keyboard_mapping_keysyms(symbols.get());
    const int keysEach = modifiers->keycodes_per_modifier;
    const int symbolsEach = symbols->keysyms_per_keycode;
    for (int i = 0; i < modifierCount * keysEach; ++i)
        if (keys[i] >= first) { // 0 fills empty places.
            const xcb_keysym_t* row = table + (keys[i] - first) * symbolsEach;
            auto& known = result[std::size_t(i / keysEach)];
            known.insert(known.end(), row, row + symbolsEach);
        }
    return result;
}

} // namespace

ModifierMasks ModifierMasks::read(const X11Connection& connection)
{
    const auto symbols = modifierSymbols(connection.xcb());
    const auto maskOf = [&](std::initializer_list<xcb_keysym_t> wanted) {
        int mask = 0;
        for (std::size_t i = 0; i < symbols.size(); ++i)
            if (std::ranges::find_first_of(symbols[i], wanted) != symbols[i].end())
                mask |= 1 << i;
        return std::uint16_t(mask);
    };
    const auto lowest = [](std::uint16_t mask) { return std::uint16_t(mask & -mask); };
    ModifierMasks masks;
    if (const auto alt = lowest(maskOf({AltLeft, AltRight})))
        masks.alt = alt;
    if (const auto super = lowest(maskOf({SuperLeft, SuperRight})))
        masks.super = super;
    const int others = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | masks.alt | masks.super;
    masks.locks = std::uint16_t((masks.locks | maskOf({NumLock, ScrollLock})) & ~others);
    return masks;
}
