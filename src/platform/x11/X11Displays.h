// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Displays.h"
#include "platform/x11/X11Connection.h"

/// The RandR monitors of the X server.
class X11Displays final : public Displays {
public:
    explicit X11Displays(std::shared_ptr<X11Connection> connection)
        : m_connection(std::move(connection))
    {
    }

    QList<DisplayInfo> list() const override;
    QPoint pointer() const override;

private:
    std::shared_ptr<X11Connection> m_connection;
};
