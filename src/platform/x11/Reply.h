// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <memory>

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};

/// A reply, event or error of the X server, owned.
template <typename T>
using Reply = std::unique_ptr<T, FreeReply>;

/// Takes ownership of what an xcb call handed out; null when the request failed.
template <typename T>
Reply<T> owned(T* reply)
{
    return Reply<T>(reply);
}
