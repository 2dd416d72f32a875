// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QSslConfiguration>
#include <QTcpServer>

/// A web server on this computer that misbehaves as it is told to.
class TestServer final : public QTcpServer {
public:
    struct Page {
        QByteArray body;
        int status = 200;
        QByteArray location {}; ///< Where to look instead; none if empty.
        qsizetype sent = -1; ///< Of the body, before the connection is cut; all of it if negative.
        bool hangs = false; ///< Once that much is sent, rather than to cut the connection.
    };

    explicit TestServer(const QSslConfiguration& secured = {});

    QHash<QByteArray, Page> pages; ///< By their paths.
    QList<QByteArray> requests; ///< Their texts, headers included.

    /// @param host one that means this computer
    QString address(const QString& path, const QString& host = QStringLiteral("127.0.0.1")) const;

    /// Signs for itself; null where there is no openssl.
    static QSslConfiguration selfSigned(const QString& folder);

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    void answer(QTcpSocket& socket);

    const QSslConfiguration m_secured;
};
