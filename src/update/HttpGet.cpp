// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "update/HttpGet.h"

#include "update/UpdateRules.h"

namespace {

constexpr int mostRedirections = 10;

int statusOf(const QNetworkReply& reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

bool isRedirection(const QNetworkReply& reply)
{
    return statusOf(reply) / 100 == 3 && reply.hasRawHeader("Location");
}

/// Whether all that failed is that the server was of another opinion. The toolkit's ranges: what
/// it says of contents, and of servers.
bool isAboutStatus(QNetworkReply::NetworkError error)
{
    return (error >= QNetworkReply::ContentAccessDenied
               && error <= QNetworkReply::UnknownContentError)
        || (error >= QNetworkReply::InternalServerError
            && error <= QNetworkReply::UnknownServerError);
}

} // namespace

HttpGet::HttpGet(Request request, Take take)
    : m_request(std::move(request))
    , m_take(std::move(take))
{
}

HttpGet::~HttpGet()
{
    if (m_reply)
        m_reply->disconnect(this);
}

Pending<void> HttpGet::run()
{
    auto [pending, answer] = Pending<void>::ask();
    m_answer = std::move(answer);
    send(m_request.address);
    return std::move(pending);
}

void HttpGet::send(const QString& address)
{
    if (!UpdateRules::isSafe(address))
        return m_answer(errorOf(UpdateError::Insecure));
    QNetworkRequest request(QUrl(address, QUrl::StrictMode));
    request.setAttribute(
        QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(
        QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setTransferTimeout(int(m_request.patience.count()));
    if (!m_request.userAgent.isEmpty())
        request.setHeader(QNetworkRequest::UserAgentHeader, m_request.userAgent);
    m_reply.reset(m_network.get(request));
    connect(m_reply.get(), &QNetworkReply::readyRead, this, &HttpGet::takeWhatArrived);
    connect(m_reply.get(), &QNetworkReply::finished, this, &HttpGet::end);
}

void HttpGet::takeWhatArrived()
{
    if (isRedirection(*m_reply) || m_refused)
        return;
    const QByteArray piece = m_reply->readAll();
    if (const auto taken = m_take(piece); !taken) {
        m_refused = taken.error();
        return m_reply->abort();
    }
    m_received += piece.size();
    const QVariant total = m_reply->header(QNetworkRequest::ContentLengthHeader);
    Q_EMIT received(m_received, total.isValid() ? total.toLongLong() : -1);
}

void HttpGet::end()
{
    if (isRedirection(*m_reply))
        return followRedirection();
    if (m_reply->bytesAvailable() > 0)
        takeWhatArrived();
    if (m_refused)
        m_answer(*m_refused);
    else if (const auto error = transferError())
        m_answer(*error);
    else
        m_answer({});
}

void HttpGet::followRedirection()
{
    // As it is written, unless it has to be completed from where it was found.
    QString target = QString::fromUtf8(m_reply->rawHeader("Location"));
    if (QUrl(target).isRelative())
        target = m_reply->url().resolved(QUrl(target)).toString(QUrl::FullyEncoded);
    if (++m_redirections > mostRedirections)
        return m_answer(Error::failed(tr("the server sends from one address to the next")));
    send(target);
}

std::optional<Error> HttpGet::transferError() const
{
    const auto error = m_reply->error();
    if (error == QNetworkReply::NoError || isAboutStatus(error))
        return {};
    if (error == QNetworkReply::OperationCanceledError)
        return Error::failed(tr("the server did not answer in time"));
    return Error::failed(m_reply->errorString());
}
