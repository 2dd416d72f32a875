// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Control.h"
#include "base/Descriptor.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>

#include <chrono>
#include <functional>

/// One client of the resident program: hands on its one request, sends the answer, and is deleted
/// then, or as soon as the client hangs up. Never blocks; whoever takes too long to send a whole
/// request, or to take the answer, is hung up on.
class ControlConnection final : public QObject {
public:
    using Handler = std::function<void(ControlConnection&, const Control::Request&)>;
    enum class Afterwards { HangUp, Stay };

    ControlConnection(
        Descriptor socket, std::chrono::milliseconds patience, Handler handler, QObject* parent);

    /// Once, at any time after the request. With Stay the connection lasts until the client or the
    /// parent ends.
    void answer(const Control::Answer& answer, Afterwards afterwards = Afterwards::HangUp);

private:
    void receive();
    void takeRequest(const QByteArray& line);
    void send();
    void hangUp();

    Descriptor m_socket;
    QSocketNotifier m_readable;
    QSocketNotifier m_writable;
    QTimer m_deadline;
    Handler m_handler; ///< Empty once the request was taken.
    QByteArray m_received;
    QByteArray m_unsent;
    Afterwards m_afterwards = Afterwards::HangUp;
};
