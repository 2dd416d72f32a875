// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/keeping/EditJournal.h"

#include "capture/Files.h"
#include "capture/ShotFile.h"
#include "editor/keeping/JournalKeys.h"

#include <QFileInfo>

#include <mutex>

/// What is to be written next. While that waits for its turn a newer one takes its place.
struct EditJournal::Newest {
    std::mutex mutex;
    std::optional<KeptEdit> edit;
    bool hasFailed = false; ///< Told once, not at every change. Only on the thread.

    /// Returns whether somebody is on the way to take it already.
    bool put(KeptEdit newer)
    {
        const std::scoped_lock lock(mutex);
        const bool isAwaited = edit.has_value();
        edit = std::move(newer);
        return isAwaited;
    }
    std::optional<KeptEdit> take()
    {
        const std::scoped_lock lock(mutex);
        return std::exchange(edit, std::nullopt);
    }
};

namespace {

Result<void> writeJournal(EditFolder& folder, const QString& owner, const KeptEdit& edit)
{
    if (const auto written = folder.write({owner, JournalKeys::written}, edit); !written)
        return written;
    // What has been changed has been opened well.
    for (const QString& key : JournalKeys::tried)
        folder.remove({owner, key});
    return {};
}

/// Of all that shows the picture as it was exported.
QList<PixelHash> hashesOf(const QImage& flattened, const QString& file)
{
    QList<PixelHash> hashes {PixelHash::of(flattened)};
    if (Files::imageType(QFileInfo(file).suffix()) == ImageType::Jpeg)
        if (const auto read = readShot(file))
            hashes.append(PixelHash::of(read->image));
    return hashes;
}

} // namespace

EditJournal::EditJournal(KeepingThread& thread, FinishedCapture capture, QString owner)
    : m_thread(thread)
    , m_capture(std::move(capture))
    , m_owner(std::move(owner))
    , m_newest(std::make_shared<Newest>())
{
    m_capture.shot.image = {};
}

EditJournal::~EditJournal() = default;

void EditJournal::note(const CanvasDocument& document)
{
    if (!m_thread.keepsJournals() || m_newest->put(editOf(document)))
        return;
    m_thread.run([thread = &m_thread, owner = m_owner, newest = m_newest] {
        const auto edit = newest->take();
        if (!edit)
            return;
        const auto written = writeJournal(thread->journals(), owner, *edit);
        if (!written && !std::exchange(newest->hasFailed, true))
            thread->onFailure(written.error().message);
    });
}

void EditJournal::moveTo(const QString& path, const QString& historyId)
{
    m_capture.path = path;
    m_capture.historyId = historyId;
}

void EditJournal::exported(
    const CanvasDocument& document, const QImage& flattened, const QString& file)
{
    const bool isAsItCame = !document.isDirty() && document.annotations().empty();
    if (isAsItCame || !m_thread.keepsLayers())
        return;
    m_thread.run([thread = &m_thread, edit = editOf(document), flattened, file] {
        for (const PixelHash& exported : hashesOf(flattened, file))
            if (const auto stored = thread->layers().store(exported, edit); !stored)
                thread->onFailure(stored.error().message);
    });
}

void EditJournal::close()
{
    m_newest->take();
    m_thread.run([thread = &m_thread, owner = m_owner] { thread->journals().removeOwner(owner); });
}

KeptEdit EditJournal::editOf(const CanvasDocument& document) const
{
    auto snapshot = document.snapshot();
    KeptEdit edit {m_capture, std::move(snapshot.annotations)};
    edit.capture.shot.image = snapshot.image;
    return edit;
}
