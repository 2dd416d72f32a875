// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/TextIndexer.h"

#include <QFileInfo>

TextIndexer::TextIndexer(Means means)
    : m_means(std::move(means))
{
    connect(&m_means.store, &HistoryStore::removed, this, [this](const QStringList& ids) {
        m_means.index.forget(ids);
        if (ids.contains(m_reading))
            giveUp();
    });
    connect(&m_means.store, &HistoryStore::pictureChanged, this, [this](const QString& id) {
        m_means.index.forget({id});
        m_unreadable.remove(id);
        if (id == m_reading)
            giveUp();
    });
    connect(&m_means.store, &HistoryStore::changed, this, [this] { later(rest); });
    connect(&m_means.index, &TextIndex::ready, this, [this] { later(rest); });
    connect(&m_means.prefs, &Prefs::changed, this, [this](const QString& key) {
        if (key == QLatin1String(Prefs::keys.findByText.name))
            adoptPreference();
    });
    m_means.index.open(m_means.store.items());
    if (!m_means.prefs.get(Prefs::keys.findByText))
        adoptPreference();
}

void TextIndexer::adoptPreference()
{
    if (m_means.prefs.get(Prefs::keys.findByText))
        return later(breath);
    giveUp();
    m_means.index.clear();
}

void TextIndexer::captureBegins()
{
    m_isCapturing = true;
    giveUp();
}

/// What has been read may be on its way already; it does not count either.
void TextIndexer::giveUp()
{
    m_isWanted = false;
    m_means.giveUp();
}

void TextIndexer::captureEnded()
{
    m_isCapturing = false;
    later(rest);
}

void TextIndexer::later(std::chrono::milliseconds time)
{
    m_means.wait(time, this, [this, turn = ++m_turn] {
        if (turn == m_turn)
            goOn();
    });
}

void TextIndexer::goOn()
{
    if (m_isCapturing || !m_reading.isEmpty() || !m_means.index.isReady()
        || !m_means.prefs.get(Prefs::keys.findByText))
        return;
    const HistoryItem* item = next();
    if (!item)
        return;
    if (m_means.hasPower())
        read(*item);
    else
        later(powerPause);
}

const HistoryItem* TextIndexer::next() const
{
    for (const auto& item : m_means.store.items())
        if (!m_means.index.has(item.id) && !m_unreadable.contains(item.id))
            return &item;
    return nullptr;
}

void TextIndexer::read(const HistoryItem& item)
{
    m_reading = item.id;
    m_isWanted = true;
    m_means.read(item).then([this, id = item.id, path = item.path](
                                const Result<OCR::Result>& recognised) {
        m_reading.clear();
        // What lies on a disk that is not there now may be read another time.
        const bool isRead = recognised && !(recognised->text.isEmpty() && !QFileInfo::exists(path));
        if (isRead && m_isWanted)
            m_means.index.put(id, recognised->text);
        else if (m_isWanted)
            m_unreadable.insert(id);
        later(breath);
    });
}
