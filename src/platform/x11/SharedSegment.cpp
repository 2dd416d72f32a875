// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/SharedSegment.h"

#include <sys/ipc.h>
#include <sys/shm.h>

std::shared_ptr<SharedSegment> SharedSegment::create(
    std::shared_ptr<X11Connection> connection, std::size_t bytes)
{
    const auto* extension = xcb_get_extension_data(connection->xcb(), &xcb_shm_id);
    if (!extension || !extension->present)
        return nullptr;
    const int handle = shmget(IPC_PRIVATE, bytes, IPC_CREAT | 0600);
    if (handle < 0)
        return nullptr;
    void* data = shmat(handle, nullptr, 0);
    std::shared_ptr<SharedSegment> segment;
    if (data != reinterpret_cast<void*>(-1)) {
        segment.reset(new SharedSegment(connection, static_cast<std::byte*>(data), bytes));
        const auto refused = owned(xcb_request_check(connection->xcb(),
            xcb_shm_attach_checked(
                connection->xcb(), segment->m_id, std::uint32_t(handle), /*read_only*/ 0)));
        if (refused)
            segment.reset();
    }
    shmctl(handle, IPC_RMID, nullptr); // Goes with the last process attached, crashed or not.
    return segment;
}

SharedSegment::SharedSegment(
    std::shared_ptr<X11Connection> connection, std::byte* data, std::size_t size)
    : m_connection(std::move(connection))
    , m_data(data)
    , m_size(size)
    , m_id(xcb_generate_id(m_connection->xcb()))
{
}

SharedSegment::~SharedSegment()
{
    xcb_shm_detach(m_connection->xcb(), m_id);
    shmdt(m_data);
}
