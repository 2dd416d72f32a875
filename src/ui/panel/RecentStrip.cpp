// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/panel/RecentStrip.h"

#include "ui/panel/RecentActions.h"
#include "ui/panel/RecentThumbnail.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

RecentStrip::RecentStrip(const Themes& themes, HistoryStore& history, RecentActions& actions)
    : m_themes(themes)
    , m_history(history)
    , m_actions(actions)
    , m_row(new QHBoxLayout(this))
{
    m_row->setContentsMargins(Space::tiny, Space::related, Space::tiny, Space::related);
    m_row->setSpacing(Space::related - 1);
    m_row->addStretch();
    connect(&m_history, &HistoryStore::thumbnailLoaded, this,
        [this](const QString& id, const Thumbnail& loaded) {
            for (auto* thumbnail : m_thumbnails)
                if (thumbnail->item().id == id)
                    thumbnail->setPicture(loaded.image);
        });
}

void RecentStrip::refresh()
{
    qDeleteAll(std::exchange(m_thumbnails, {}));
    for (const HistoryItem& item :
        m_history.items().first(std::min<qsizetype>(most, m_history.items().size()))) {
        auto* thumbnail = new RecentThumbnail(m_themes, item, m_actions);
        connect(thumbnail, &RecentThumbnail::done, this, &RecentStrip::done);
        m_row->insertWidget(int(m_thumbnails.size()), thumbnail);
        m_thumbnails << thumbnail;
        // Two of one minute and program differ by nothing else.
        thumbnail->setAccessibleDescription(
            u"%1, %2 × %3"_s.arg(m_thumbnails.size()).arg(item.width).arg(item.height));
        if (const auto known = m_history.thumbnail(item))
            thumbnail->setPicture(known->image);
    }
    setVisible(!m_thumbnails.isEmpty());
}
