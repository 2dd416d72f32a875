// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Control.h"
#include "base/Descriptor.h"
#include "base/Pending.h"

#include <QObject>
#include <QSocketNotifier>

#include <chrono>
#include <functional>
#include <memory>

class ControlConnection;

/// Makes this program the resident one, which takes requests from other programs of the user. Its
/// end tells a program that waits to be the next one that it may begin, so let it live until
/// nothing more is written to the user's folders.
class ControlServer final : public QObject {
public:
    struct Handlers {
        std::function<void()> panelRequested;
        std::function<Pending<CaptureReport>(CaptureKind)> capture;
        std::function<void()> quit; ///< Returns before the program ends.
        std::function<Pending<CaptureReport>(QStringList)> pin {};
        std::function<Pending<CaptureReport>(QStringList)> edit {};
        std::function<void(Control::Show::What)> show {};
        std::function<QList<CaptureKind>()> refusedShortcuts {};
    };

    /// Takes the place of the resident program; fails with Error::Kind::Exists if another process
    /// has it. However that one ends, its place is free then. Clients that come now wait.
    static Result<std::unique_ptr<ControlServer>> listen(const Folders& folders);
    ~ControlServer() override;

    /// From now on answers clients, who may take as long as given to send their request. A capture
    /// that nobody waits for counts as accepted unless its report is there at once.
    void serve(Handlers handlers, std::chrono::milliseconds patience = std::chrono::seconds(5));

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
    Handlers m_handlers;
    std::chrono::milliseconds m_patience {};
    int m_clients = 0;
};
