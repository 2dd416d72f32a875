// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/panel/RecentActions.h"

#include "base/Worker.h"
#include "history/EntryPicture.h"

#include <QMenu>
#include <QPointer>

using namespace Qt::StringLiterals;

RecentActions::RecentActions(ShotActions actions, QString revealTitle)
    : m_actions(std::move(actions))
    , m_revealTitle(std::move(revealTitle))
{
}

void RecentActions::with(const HistoryItem& item, std::function<void(const FinishedCapture&)> act)
{
    auto read = [item] { return readEntry(item); };
    const QPointer self(this);
    runOnWorker(read).then([self, act = std::move(act)](const Result<FinishedCapture>& capture) {
        if (self && capture)
            act(*capture);
    });
}

void RecentActions::edit(const HistoryItem& item)
{
    with(item, m_actions.edit);
}

void RecentActions::copy(const HistoryItem& item)
{
    with(item, [this](const FinishedCapture& capture) { std::ignore = m_actions.copy(capture); });
}

void RecentActions::pin(const HistoryItem& item)
{
    with(item, m_actions.pin);
}

void RecentActions::fill(QMenu& menu, const HistoryItem& item, QWidget* asking)
{
    const auto add = [&](const QString& title, bool isOffered,
                         const std::function<void(const FinishedCapture&)>& act) {
        if (isOffered)
            menu.addAction(title, this, [this, item, act] { with(item, act); });
    };
    add(tr("Edit"), bool(m_actions.edit), m_actions.edit);
    add(tr("Copy"), bool(m_actions.copy),
        [this](const FinishedCapture& capture) { std::ignore = m_actions.copy(capture); });
    add(tr("Pin"), bool(m_actions.pin), m_actions.pin);
    add(tr("Save As…"), bool(m_actions.saveAs), [this, asking](const FinishedCapture& capture) {
        std::ignore = m_actions.saveAs(capture, asking);
    });
    add(m_revealTitle, m_actions.reveal && !item.cached, m_actions.reveal);
}
