// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/X11Connection.h"

#include <optional>

/// The few things asked of the server's keyboard extension. Its header is no valid C++, so that
/// only one file includes it. On a server without it nothing happens.
namespace Xkb {

/// From now on a key that is held repeats its press only, without a release before each, and events
/// tell when the keyboard gets another layout or other modifiers.
void start(const X11Connection& connection);
bool isNewMapping(const X11Connection& connection, const xcb_generic_event_t& event);

/// Whether changes of the modifiers that are down come as events, whoever has the keyboard.
void watchModifiers(const X11Connection& connection, bool watch);

/// The modifiers that are down or locked at this moment.
std::uint16_t modifiers(const X11Connection& connection);

/// Those after the change that an event tells of; none for any other event.
std::optional<std::uint16_t> modifiersIn(
    const X11Connection& connection, const xcb_generic_event_t& event);

} // namespace Xkb
