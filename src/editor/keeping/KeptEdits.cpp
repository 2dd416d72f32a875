// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/keeping/KeptEdits.h"

#include "editor/keeping/JournalKeys.h"

#include <QTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// An edit that is shown this long without a crash has been reopened well.
constexpr auto provenAfter = 10s;

QStringList idsOf(const QList<HistoryItem>& items)
{
    QStringList ids;
    for (const auto& item : items)
        ids.append(item.id);
    return ids;
}

} // namespace

KeptEdits::KeptEdits(const Folders& folders, const Prefs& prefs, HistoryStore& history)
    : m_history(history)
    , m_thread(folders, prefs)
{
    m_thread.onFailure = [this](const QString& why) {
        QMetaObject::invokeMethod(
            this, [this, why] { Q_EMIT failed(why); }, Qt::QueuedConnection);
    };
    connect(&history, &HistoryStore::removed, this, &KeptEdits::forget);
    connect(&prefs, &Prefs::changed, this, &KeptEdits::adoptPreference);
    if (!m_thread.keepsLayers())
        adoptPreference(QString::fromLatin1(Prefs::keys.keepEditsEditable.name));
    if (m_thread.keepsJournals())
        takeStock();
    else
        adoptPreference(QString::fromLatin1(Prefs::keys.historyEnabled.name));
    m_thread.run([this, ids = idsOf(history.items())] {
        m_thread.journals().removeUnfinished();
        m_thread.layers().removeStrays(ids);
    });
}

KeptEdits::~KeptEdits() = default;

/// The folder is read at once: an editor that opens later is not left behind.
void KeptEdits::takeStock()
{
    for (const auto& name : m_thread.journals().records()) {
        if (name.key == JournalKeys::written || name.key == JournalKeys::tried[0]) {
            m_leftBehind.append(name);
        } else if (name.key == JournalKeys::tried[1]) {
            m_thread.journals().rename(name, JournalKeys::givenUp);
            m_thread.onFailure(tr("An edit made Pixmallow crash twice and is not opened again."));
        }
    }
}

Pending<std::optional<KeptEdit>> KeptEdits::find(const FinishedCapture& capture)
{
    using Found = std::optional<KeptEdit>;
    if (!m_thread.keepsLayers())
        return Pending<Found>::answered(Found());
    auto [pending, answer] = Pending<Found>::ask();
    const auto shared = std::make_shared<decltype(answer)>(std::move(answer));
    m_thread.run([this, image = capture.shot.image, id = capture.historyId, shared] {
        const Layers& layers = m_thread.layers();
        auto found = layers.isEmpty() ? Found() : layers.find(PixelHash::of(image), id);
        QMetaObject::invokeMethod(
            qApp, [shared, found = std::move(found)] { (*shared)(found); }, Qt::QueuedConnection);
    });
    return std::move(pending);
}

std::unique_ptr<EditJournal> KeptEdits::journal(const FinishedCapture& capture)
{
    return std::make_unique<EditJournal>(m_thread, capture, newHistoryId());
}

void KeptEdits::reopen(const Reopen& open)
{
    for (const auto& name : std::exchange(m_leftBehind, {}))
        m_thread.run([this, name, open] {
            m_thread.journals().rename(name, JournalKeys::afterTry(name.key));
            auto edit = m_thread.journals().read({name.owner, JournalKeys::afterTry(name.key)});
            if (!edit) {
                m_thread.onFailure(tr("Couldn’t reopen an edit. %1").arg(edit.error().message));
                return;
            }
            auto opened = [this, owner = name.owner, open, edit = *std::move(edit)] {
                open(edit, std::make_unique<EditJournal>(m_thread, edit.capture, owner));
                QTimer::singleShot(provenAfter, this, [this, owner] { settle(owner); });
            };
            QMetaObject::invokeMethod(this, std::move(opened), Qt::QueuedConnection);
        });
    Q_EMIT leftBehindChanged();
}

/// Whatever happens to it from now on is not its fault.
void KeptEdits::settle(const QString& owner)
{
    m_thread.run([this, owner] {
        for (const QString& key : JournalKeys::tried)
            m_thread.journals().rename({owner, key}, JournalKeys::written);
    });
}

void KeptEdits::discardLeftBehind()
{
    for (const auto& name : std::exchange(m_leftBehind, {}))
        m_thread.run([this, owner = name.owner] { m_thread.journals().removeOwner(owner); });
    Q_EMIT leftBehindChanged();
}

void KeptEdits::adoptPreference(const QString& key)
{
    const auto is = [&key](const AnyPrefKey& other) { return key == QLatin1String(other.name); };
    const bool isHistory = is(Prefs::keys.historyEnabled);
    if ((isHistory || is(Prefs::keys.keepEditsEditable)) && !m_thread.keepsLayers())
        m_thread.run([this] { m_thread.layers().clear(); });
    if (isHistory && !m_thread.keepsJournals()) {
        m_leftBehind.clear();
        m_thread.run([this] { m_thread.journals().clear(); });
        Q_EMIT leftBehindChanged();
    }
}

void KeptEdits::forget(const QStringList& historyIds)
{
    m_thread.run([this, historyIds, isEmpty = m_history.items().isEmpty()] {
        m_thread.layers().remove(historyIds);
        if (isEmpty) // It was cleared; then what is in no history goes, too.
            m_thread.layers().clear();
    });
    for (const auto& name : m_leftBehind)
        m_thread.run([this, name, historyIds] {
            const auto record = m_thread.journals().readRecord(name);
            if (!record || !historyIds.contains(record->edit.capture.historyId))
                return;
            m_thread.journals().removeOwner(name.owner);
            auto gone = [this, name] {
                m_leftBehind.removeOne(name);
                Q_EMIT leftBehindChanged();
            };
            QMetaObject::invokeMethod(this, std::move(gone), Qt::QueuedConnection);
        });
}
