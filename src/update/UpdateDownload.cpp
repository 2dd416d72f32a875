// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "update/UpdateDownload.h"

#include "update/UpdateRules.h"

#include <QPointer>

using namespace std::chrono_literals;

namespace {

constexpr auto patience = 60s; // With a server that has stopped sending.

std::span<const std::uint8_t> bytesOf(const QByteArray& piece)
{
    return {reinterpret_cast<const std::uint8_t*>(piece.constData()), std::size_t(piece.size())};
}

} // namespace

UpdateDownload::UpdateDownload(UpdateInfo info, QString path)
    : m_info(std::move(info))
    , m_file(std::move(path), {AtomicFile::Existing::Replace})
    , m_get({m_info.url, {}, patience}, [this](const QByteArray& piece) {
        m_hash.addData(piece);
        return m_file.write(bytesOf(piece));
    })
{
    connect(&m_get, &HttpGet::received, this, &UpdateDownload::received);
}

Pending<void> UpdateDownload::run()
{
    if (const auto opened = m_file.open(); !opened)
        return Pending<void>::answered(opened.error());
    auto [pending, answer] = Pending<void>::ask();
    m_answer = std::move(answer);
    m_get.run().then([download = QPointer(this)](const Result<void>& fetched) {
        if (download)
            download->end(fetched);
    });
    return std::move(pending);
}

void UpdateDownload::end(const Result<void>& fetched)
{
    m_answer(fetched ? keep() : fetched);
}

Result<void> UpdateDownload::keep()
{
    if (QString::fromLatin1(m_hash.result().toHex()) != m_info.sha256)
        return errorOf(UpdateError::Checksum);
    return m_file.commit();
}
