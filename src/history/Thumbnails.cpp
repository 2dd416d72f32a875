// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/Thumbnails.h"

#include "capture/Reduced.h"

#include <algorithm>
#include <limits>

namespace {

constexpr int beforeAllLoads = std::numeric_limits<int>::max();

} // namespace

Thumbnails::Thumbnails(const QString& folder)
    : m_files(folder)
{
    m_thread.setMaxThreadCount(1);
}

Thumbnails::~Thumbnails()
{
    m_isEnding = true;
    m_thread.waitForDone();
}

void Thumbnails::make(const HistoryItem& item, const QImage& image)
{
    const quint64 request = expect(item.id);
    inOrder([this, item, image, request, stamp = stampOf(item.path)] {
        const Thumbnail thumbnail {reduced(image, most), item.points()};
        m_files.write(item.id, thumbnail.image, stamp);
        deliverLater(item.id, request, thumbnail);
    });
}

std::optional<Thumbnail> Thumbnails::thumbnail(const HistoryItem& item)
{
    if (const Thumbnail* known = m_memory.object(item.id))
        return *known;
    if (m_expected.contains(item.id) || m_unreadable.contains(item.id))
        return std::nullopt;
    const quint64 request = expect(item.id);
    const auto priority = int(std::min<quint64>(request, beforeAllLoads - 1));
    m_thread.start([this, item, request] { load(item, request); }, priority);
    return std::nullopt;
}

void Thumbnails::load(const HistoryItem& item, quint64 request)
{
    if (m_isEnding)
        return;
    const FileStamp stamp = stampOf(item.path); // Before the pixels, which may change meanwhile.
    if (const QImage kept = m_files.read(item.id, stamp); !kept.isNull()) {
        deliverLater(item.id, request, {kept, item.points()});
        return;
    }
    const QImage image = decoded(item.path);
    if (image.isNull()) {
        deliverLater(item.id, request, {});
        return;
    }
    HistoryItem found = item; // Another program may have cropped the user's file.
    found.width = image.width();
    found.height = image.height();
    deliverLater(item.id, request, {reduced(image, most), found.points()},
        found == item ? stamp : std::nullopt);
}

void Thumbnails::forget(const QStringList& ids)
{
    for (const QString& id : ids) {
        m_memory.remove(id);
        m_expected.remove(id);
        m_unreadable.remove(id);
    }
    inOrder([this, ids] {
        for (const QString& id : ids)
            m_files.remove(id);
    });
}

void Thumbnails::forgetAllBut(const QList<HistoryItem>& items)
{
    inOrder([this, items] { m_files.removeAllBut(items); });
}

/// Files are written and removed in the order in which that was asked for.
void Thumbnails::inOrder(std::function<void()> work)
{
    m_thread.start(std::move(work), beforeAllLoads);
}

/// Whatever was known or expected of the entry no longer counts.
quint64 Thumbnails::expect(const QString& id)
{
    m_memory.remove(id);
    m_unreadable.remove(id);
    m_expected.insert(id, ++m_lastRequest);
    return m_lastRequest;
}

void Thumbnails::deliverLater(
    const QString& id, quint64 request, const Thumbnail& thumbnail, FileStamp stamp)
{
    QMetaObject::invokeMethod(
        this, [this, id, request, thumbnail, stamp] { deliver(id, request, thumbnail, stamp); },
        Qt::QueuedConnection);
}

void Thumbnails::deliver(
    const QString& id, quint64 request, const Thumbnail& thumbnail, FileStamp stamp)
{
    if (m_expected.value(id) != request)
        return; // Removed or replaced meanwhile.
    m_expected.remove(id);
    if (thumbnail.image.isNull())
        m_unreadable.insert(id);
    else
        m_memory.insert(id, new Thumbnail(thumbnail), thumbnail.image.sizeInBytes());
    if (stamp)
        inOrder([this, id, image = thumbnail.image, stamp] { m_files.write(id, image, stamp); });
    Q_EMIT loaded(id, thumbnail);
}
