// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/TextIndex.h"

#include "history/HistoryCatalogue.h"

namespace {

constexpr int batch = 500; // Texts; soon enough for the first, seldom enough for the window.

} // namespace

TextIndex::TextIndex(const Folders& folders)
    : m_files(folders.data)
{
    m_thread.setMaxThreadCount(1);
}

TextIndex::~TextIndex()
{
    m_isEnding = true;
    m_thread.waitForDone();
}

void TextIndex::inOrder(std::function<void()> work)
{
    m_thread.start(std::move(work));
}

void TextIndex::open(const QList<HistoryItem>& items)
{
    inOrder([this, items] {
        m_files.removeAllBut(items);
        QMetaObject::invokeMethod(
            this,
            [this, ids = m_files.ids()] {
                m_ids.unite(ids);
                m_isReady = true;
                Q_EMIT ready();
            },
            Qt::QueuedConnection);
    });
}

QString TextIndex::text(const QString& id) const
{
    return m_files.read(id);
}

void TextIndex::put(const QString& id, const QString& text)
{
    m_ids.insert(id);
    inOrder([this, id, text] { m_files.write(id, text); });
    Q_EMIT loaded({{id, searchable(text)}});
}

void TextIndex::forget(const QStringList& ids)
{
    for (const QString& id : ids)
        m_ids.remove(id);
    inOrder([this, ids] {
        for (const QString& id : ids)
            m_files.remove(id);
    });
}

void TextIndex::clear()
{
    m_ids.clear();
    inOrder([this] { m_files.removeAll(); });
}

void TextIndex::load()
{
    inOrder([this] {
        QHash<QString, QByteArray> texts;
        for (const QString& id : m_files.ids()) {
            if (m_isEnding)
                return;
            if (const QString text = m_files.read(id); !text.isEmpty())
                texts.insert(id, searchable(text));
            if (texts.size() == batch)
                deliver(std::exchange(texts, {}));
        }
        deliver(std::move(texts));
    });
}

void TextIndex::deliver(QHash<QString, QByteArray> texts)
{
    QMetaObject::invokeMethod(
        this,
        [this, texts = std::move(texts)]() mutable {
            // Removed meanwhile.
            texts.removeIf([this](auto each) { return !m_ids.contains(each.key()); });
            if (!texts.isEmpty())
                Q_EMIT loaded(texts);
        },
        Qt::QueuedConnection);
}
