// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Pending.h"

#include <QThreadPool>

/// Runs work() on another thread; the answer comes on the main thread. What the work uses must be
/// its own: values, or pixels shared read-only. The program ends only when all work has ended.
template <typename Work>
auto runOnWorker(Work work)
{
    using Value = typename decltype(work())::Value;
    auto [pending, answer] = Pending<Value>::ask();
    auto shared = std::make_shared<decltype(answer)>(std::move(answer));
    QThreadPool::globalInstance()->start([work = std::move(work), shared]() mutable {
        auto result = std::make_shared<Result<Value>>(work());
        QMetaObject::invokeMethod(
            qApp, [shared = std::move(shared), result] { (*shared)(std::move(*result)); },
            Qt::QueuedConnection);
    });
    return std::move(pending);
}
