// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"
#include "base/Result.h"

#include <chrono>
#include <optional>

/// Stream sockets between the programs of one user on one machine, named by an absolute path of at
/// most 107 bytes; a longer one fails. What is opened is not inherited by started programs.
namespace LocalSocket {

/// Listens without blocking; only the user may connect. Replaces a socket that is there, so the
/// caller must know that nobody listens on it any more.
Result<Descriptor> listen(const QString& path);

/// Connects, for blocking use in which no step may take longer than given. None when nobody
/// listens; fails if it is another user who does.
Result<std::optional<Descriptor>> connect(
    const QString& path, std::chrono::milliseconds mostPerStep);

/// Whether the process at the other end of a connection runs as the same user.
bool isSameUser(const Descriptor& connection);

/// How long receiving may take on a blocking connection; 0 is for ever.
void setReceiveTimeout(const Descriptor& connection, std::chrono::milliseconds most);

} // namespace LocalSocket
