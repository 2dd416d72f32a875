// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/Requests.h"
#include "base/Descriptor.h"

#include <QObject>
#include <QSocketNotifier>

#include <chrono>
#include <memory>

class ControlConnection;

/// Makes this program the resident one, which takes requests from other programs of the user. Its
/// end tells a program that waits to be the next one that it may begin, so let it live until
/// nothing more is written to the user's folders.
class ControlServer final : public QObject {
public:
    /// Takes the place of the resident program; fails with Error::Kind::Exists if another process
    /// has it. However that one ends, its place is free then. Clients that come now wait.
    static Result<std::unique_ptr<ControlServer>> listen(const Folders& folders);
    ~ControlServer() override;

    /// From now on answers clients, who may take as long as given to send their request. A capture
    /// that nobody waits for counts as accepted unless its report is there at once.
    void serve(Requests requests, std::chrono::milliseconds patience = std::chrono::seconds(5));

private:
    ControlServer(Descriptor lock, Descriptor socket, QString path);

    void accept();
    void pauseAccepting();
    void follow(ControlConnection& client, const Control::Request& request);
    void capture(ControlConnection& client, Control::Capture request);

    Descriptor m_lock;
    Descriptor m_socket;
    QString m_path;
    QSocketNotifier m_arrivals;
    Requests m_requests;
    std::chrono::milliseconds m_patience {};
    int m_clients = 0;
};
