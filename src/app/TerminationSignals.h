// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSocketNotifier>

/// Turns SIGTERM, SIGINT and SIGHUP into a signal on the main thread, so that the program can end
/// in order. One object at a time.
class TerminationSignals final : public QObject {
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;

Q_SIGNALS:
    void received();

private:
    int m_readEnd = -1;
    QSocketNotifier m_notifier;
};
