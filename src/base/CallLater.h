// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <chrono>
#include <functional>

/// Calls a function once when some time has passed, unless the object that wanted it is gone by
/// then. Tests bring a time of their own.
using CallLater = std::function<void(std::chrono::milliseconds, QObject*, std::function<void()>)>;

/// By the event loop, to the millisecond, which a usual timer is not.
inline void callLater(std::chrono::milliseconds time, QObject* wantedBy, std::function<void()> call)
{
    QTimer::singleShot(time, Qt::PreciseTimer, wantedBy, std::move(call));
}
