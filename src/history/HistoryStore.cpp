// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryStore.h"

#include "capture/Files.h"
#include "history/HistoryIndex.h"

#include <QFileInfo>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

HistoryStore* s_shared = nullptr;

constexpr int fewest = 10; // Entries kept, whatever is preferred.

double usable(double scale)
{
    return std::isfinite(scale) && scale > 0 ? scale : 1;
}

bool isSameFile(const QString& path, const QString& other)
{
    return path == other || (QFileInfo::exists(path) && QFileInfo(path) == QFileInfo(other));
}

} // namespace

HistoryStore::HistoryStore(const Folders& folders, const Prefs& prefs, Clock clock)
    : m_prefs(prefs)
    , m_clock(std::move(clock))
    , m_folder(folders)
    , m_thumbnails(folders.cache + u"/Thumbnails"_s)
{
    connect(&m_thumbnails, &Thumbnails::loaded, this, &HistoryStore::thumbnailLoaded);
    auto content = m_folder.open();
    m_items = std::move(content.items);
    m_thumbnails.forgetAllBut(m_items);
    if (content.isMoved)
        save();
    if (!content.gone.isEmpty())
        QMetaObject::invokeMethod(
            this, [this, gone = content.gone] { Q_EMIT removed(gone); }, Qt::QueuedConnection);
}

HistoryStore::~HistoryStore()
{
    if (!m_isSaved)
        save();
    if (s_shared == this)
        s_shared = nullptr;
}

HistoryStore& HistoryStore::shared()
{
    Q_ASSERT(s_shared);
    return *s_shared;
}

void HistoryStore::install()
{
    s_shared = this;
}

QString HistoryStore::add(const QImage& image, double scale, const QString& savedPath,
    const QString& app, const QByteArray& png)
{
    if (!m_prefs.get(Prefs::keys.historyEnabled) || image.isNull())
        return {};
    const QString id = newHistoryId();
    const bool isCached = savedPath.isEmpty();
    const QString path
        = isCached ? writtenCopy(id, image, scale, png) : QFileInfo(savedPath).absoluteFilePath();
    if (path.isEmpty())
        return {};
    m_items.prepend({id, historyDate(m_clock()), path, image.width(), image.height(), usable(scale),
        app, isCached});
    m_thumbnails.make(m_items.first(), image);
    const QStringList gone = prune();
    save();
    conclude(gone);
    return id;
}

bool HistoryStore::update(const QString& id, const QImage& image, double scale,
    const QString& savedPath, const QByteArray& png)
{
    const auto found = std::ranges::find(m_items, id, &HistoryItem::id);
    if (found == m_items.end() || image.isNull())
        return false;
    const HistoryItem before = *found;
    HistoryItem after = before;
    after.path = savedPath.isEmpty() ? writtenCopy(id, image, scale, png)
                                     : QFileInfo(savedPath).absoluteFilePath();
    if (after.path.isEmpty())
        return false;
    after.cached
        = isSameFile(after.path, m_folder.copyPath(id)); // What was edited may be the copy.
    if (after.cached)
        after.path = m_folder.copyPath(id);
    after.width = image.width();
    after.height = image.height();
    after.scale = usable(scale);
    *found = after;
    m_thumbnails.make(after, image);
    save();
    if (!after.cached && m_isSaved) // Until the index names the other file, it names the copy.
        m_folder.removeCopy(before);
    Q_EMIT pictureChanged(id);
    conclude({});
    return true;
}

void HistoryStore::remove(const HistoryItem& item, Persist persist)
{
    const auto found = std::ranges::find(m_items, item.id, &HistoryItem::id);
    if (found == m_items.end())
        return;
    const QStringList gone {item.id};
    drop(found - m_items.begin());
    m_isSaved = false;
    if (persist == Persist::Now)
        save();
    conclude(gone);
}

void HistoryStore::clear()
{
    QStringList gone;
    for (const auto& item : m_items) {
        m_folder.removeCopy(item);
        gone.append(item.id);
    }
    m_items.clear();
    save();
    conclude(gone);
}

std::optional<Thumbnail> HistoryStore::thumbnail(const HistoryItem& item)
{
    const auto found = std::ranges::find(m_items, item.id, &HistoryItem::id);
    return found == m_items.end() ? std::nullopt : m_thumbnails.thumbnail(*found);
}

void HistoryStore::save()
{
    m_isSaved = bool(m_folder.writeIndex(HistoryIndex::toJson(m_items)));
}

/// The path of the private copy; empty if it cannot be written.
QString HistoryStore::writtenCopy(
    const QString& id, const QImage& image, double scale, const QByteArray& png)
{
    const auto encoded = png.isEmpty() ? Files::encode(image, ImageType::Png, usable(scale))
                                       : Result<QByteArray>(png);
    return encoded && m_folder.writeCopy(id, *encoded) ? m_folder.copyPath(id) : QString();
}

/// Returns the ids of the entries that were too many.
QStringList HistoryStore::prune()
{
    const int limit = std::max(fewest, m_prefs.get(Prefs::keys.historyMax));
    QStringList gone;
    while (m_items.size() > limit) {
        gone.append(m_items.last().id);
        drop(m_items.size() - 1);
    }
    return gone;
}

/// The file goes before the index tells so: a file that is missing is noticed at the next start,
/// one that nobody names might stay for ever.
void HistoryStore::drop(qsizetype index)
{
    m_folder.removeCopy(m_items.takeAt(index));
}

/// Ends an operation. The signals come last, for a listener may ask for something itself.
void HistoryStore::conclude(const QStringList& gone)
{
    if (!gone.isEmpty()) {
        m_thumbnails.forget(gone);
        Q_EMIT removed(gone);
    }
    Q_EMIT changed();
}
