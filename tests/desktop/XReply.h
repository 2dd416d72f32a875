// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdlib>
#include <memory>

/// Frees what the X library allocated with malloc.
struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};

/// A reply, event or error of the X server; null when the request failed.
template <typename T>
using XReply = std::unique_ptr<T, FreeReply>;

template <typename T>
XReply<T> owned(T* reply)
{
    return XReply<T>(reply);
}
