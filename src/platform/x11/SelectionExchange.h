// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/X11Connection.h"

#include <functional>

/// Hands bytes from one connection to another the way copies go from program to program, by a
/// selection of a name that nobody else uses: the clipboard itself stays with its owner.
class SelectionExchange final {
public:
    SelectionExchange(std::shared_ptr<X11Connection> giver, std::shared_ptr<X11Connection> taker);
    ~SelectionExchange();
    SelectionExchange(const SelectionExchange&) = delete;
    SelectionExchange& operator=(const SelectionExchange&) = delete;

    /// What arrived at the taker.
    Result<QByteArray> exchange(const QByteArray& bytes);

private:
    xcb_window_t makeWindow(X11Connection& connection) const;
    void give(const xcb_selection_request_event_t& request, const QByteArray& bytes) const;
    bool waitForEvent(X11Connection& connection, std::uint8_t type,
        const std::function<void(const xcb_generic_event_t&)>& handle) const;

    std::shared_ptr<X11Connection> m_giver;
    std::shared_ptr<X11Connection> m_taker;
    xcb_window_t m_owner;
    xcb_window_t m_requestor;
};
