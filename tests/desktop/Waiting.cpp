// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/desktop/Waiting.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

bool waitFor(const std::function<bool()>& condition, std::chrono::milliseconds most)
{
    const QDeadlineTimer deadline(most);
    for (;;) {
        QCoreApplication::processEvents();
        if (condition())
            return true;
        if (deadline.hasExpired())
            return false;
        QThread::msleep(1);
    }
}
