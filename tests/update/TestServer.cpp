// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/update/TestServer.h"

#include <QFile>
#include <QProcess>
#include <QSslKey>
#include <QSslSocket>

using namespace Qt::StringLiterals;

TestServer::TestServer(const QSslConfiguration& secured)
    : m_secured(secured)
{
    listen(QHostAddress::LocalHost);
}

QString TestServer::address(const QString& path, const QString& host) const
{
    const QString scheme = m_secured.isNull() ? u"http"_s : u"https"_s;
    return u"%1://%2:%3%4"_s.arg(scheme, host).arg(serverPort()).arg(path);
}

QSslConfiguration TestServer::selfSigned(const QString& folder)
{
    const QString key = folder + u"/key.pem"_s, certificate = folder + u"/certificate.pem"_s;
    QProcess::execute(u"openssl"_s,
        {u"req"_s, u"-x509"_s, u"-newkey"_s, u"ec"_s, u"-pkeyopt"_s, u"ec_paramgen_curve:P-256"_s,
            u"-nodes"_s, u"-subj"_s, u"/CN=127.0.0.1"_s, u"-addext"_s,
            u"subjectAltName=IP:127.0.0.1"_s, u"-keyout"_s, key, u"-out"_s, certificate});
    QFile keyFile(key);
    const auto certificates = QSslCertificate::fromPath(certificate);
    if (certificates.isEmpty() || !keyFile.open(QIODevice::ReadOnly))
        return {};
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(certificates.first());
    configuration.setPrivateKey(QSslKey(&keyFile, QSsl::Ec));
    return configuration;
}

void TestServer::incomingConnection(qintptr descriptor)
{
    auto* const socket = m_secured.isNull() ? new QTcpSocket(this) : new QSslSocket(this);
    socket->setSocketDescriptor(descriptor);
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] { answer(*socket); });
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    if (auto* const secured = qobject_cast<QSslSocket*>(socket)) {
        secured->setSslConfiguration(m_secured);
        secured->startServerEncryption();
    }
}

void TestServer::answer(QTcpSocket& socket)
{
    const QByteArray request = socket.readAll();
    requests << request;
    const Page page = pages.value(request.split(' ').value(1), {"nothing here", 404});
    socket.write("HTTP/1.1 " + QByteArray::number(page.status) + " So\r\nContent-Length: "
        + QByteArray::number(page.body.size()) + "\r\nConnection: close\r\n");
    if (!page.location.isEmpty())
        socket.write("Location: " + page.location + "\r\n");
    socket.write("\r\n" + page.body.left(page.sent < 0 ? page.body.size() : page.sent));
    if (!page.hangs)
        socket.disconnectFromHost();
}
