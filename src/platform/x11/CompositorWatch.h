// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractNativeEventFilter>

#include <functional>
#include <xcb/xcb.h>

/// Knows whether a compositing manager runs, by the selection that it owns, over the toolkit's own
/// connection.
class CompositorWatch final : public QAbstractNativeEventFilter {
public:
    CompositorWatch(xcb_connection_t* xcb, std::function<void()> changed);
    ~CompositorWatch() override;

    bool isRunning() const { return m_running; }

    bool nativeEventFilter(const QByteArray& type, void* message, qintptr* result) override;

private:
    bool ask() const;

    xcb_connection_t* m_xcb;
    std::function<void()> m_changed;
    xcb_atom_t m_selection = XCB_ATOM_NONE;
    std::uint8_t m_selectionEvent = 0;
    bool m_running = false;
};
