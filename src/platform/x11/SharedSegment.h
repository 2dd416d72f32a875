// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/X11Connection.h"

#include <xcb/shm.h>

/// Memory that the X server writes pixels into, shared with it by MIT-SHM.
class SharedSegment final {
public:
    /// Null where the server cannot share memory with us, for example over a network.
    static std::shared_ptr<SharedSegment> create(
        std::shared_ptr<X11Connection> connection, std::size_t bytes);
    ~SharedSegment();
    SharedSegment(const SharedSegment&) = delete;
    SharedSegment& operator=(const SharedSegment&) = delete;

    xcb_shm_seg_t id() const { return m_id; }
    std::byte* data() const { return m_data; }
    std::size_t size() const { return m_size; }

private:
    SharedSegment(std::shared_ptr<X11Connection> connection, std::byte* data, std::size_t size);

    std::shared_ptr<X11Connection> m_connection;
    std::byte* m_data;
    std::size_t m_size;
    xcb_shm_seg_t m_id;
};
