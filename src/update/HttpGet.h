// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Pending.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>

#include <chrono>

/// Fetches one file. Follows redirections, each only where UpdateRules::isSafe() lets it. What a
/// server sends beside an error status is taken like anything else. Destroyed before its end, it
/// answers Cancelled.
class HttpGet final : public QObject {
    Q_OBJECT

public:
    struct Request {
        QString address;
        QByteArray userAgent; ///< The toolkit's if empty.
        std::chrono::milliseconds patience {}; ///< With a server that sends nothing; not 0.
    };
    /// Is given the file piece by piece. What it fails with ends the transfer.
    using Take = std::function<Result<void>(const QByteArray& piece)>;

    HttpGet(Request request, Take take);
    ~HttpGet() override;

    /// Once. Answered when the whole file was taken; else with UpdateError::Insecure, what `take`
    /// failed with, or what the network has to say.
    Pending<void> run();

Q_SIGNALS:
    /// Bytes; the total is -1 while it is not known.
    void received(qint64 bytes, qint64 total);

private:
    void send(const QString& address);
    void takeWhatArrived();
    void end();
    void followRedirection();
    std::optional<Error> transferError() const;

    const Request m_request;
    const Take m_take;
    QNetworkAccessManager m_network;
    std::unique_ptr<QNetworkReply, QScopedPointerDeleteLater> m_reply;
    std::optional<Error> m_refused; ///< By who takes it.
    qint64 m_received = 0; ///< Bytes.
    int m_redirections = 0;
    Pending<void>::Answer m_answer;
};
