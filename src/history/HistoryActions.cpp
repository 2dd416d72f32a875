// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryActions.h"

#include "base/Words.h"
#include "base/Worker.h"
#include "capture/Files.h"
#include "history/EntryPicture.h"
#include "widgets/Icons.h"

#include <QDrag>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize dragged(160, 120); // Points that what is dragged measures at most.

const QString copied = u"doc.on.doc"_s;
const QString failure = u"exclamationmark.triangle.fill"_s;

QStringList pathsOf(const QList<HistoryItem>& items)
{
    QStringList paths;
    for (const auto& item : items)
        if (QFileInfo::exists(item.path))
            paths.append(item.path);
    return paths;
}

} // namespace

HistoryActions::HistoryActions(Means means)
    : m_means(std::move(means))
{
}

void HistoryActions::withShot(const HistoryItem& item, std::function<void(FinishedCapture)> act)
{
    auto read = [item] { return readEntry(item); };
    runOnWorker(read).then(
        [self = QPointer(this), act = std::move(act)](const Result<FinishedCapture>& capture) {
            if (!self)
                return;
            if (capture)
                act(*capture);
            else
                self->tell(tr("No picture"), failure, capture.error().message);
        });
}

void HistoryActions::tell(const QString& title, const QString& symbol, const QString& message) const
{
    if (m_means.tell)
        m_means.tell({title, message, symbol});
}

void HistoryActions::edit(const HistoryItem& item)
{
    if (m_means.shots.edit)
        withShot(item, m_means.shots.edit);
}

void HistoryActions::pin(const HistoryItem& item)
{
    if (m_means.shots.pin)
        withShot(item, m_means.shots.pin);
}

void HistoryActions::reveal(const HistoryItem& item)
{
    // That the file manager does not come is seen by itself.
    std::ignore = Files::reveal(m_means.workspace, item.path, m_means.prefs.saveFolder());
}

void HistoryActions::copy(const QList<HistoryItem>& items)
{
    if (items.size() > 1) {
        const QStringList paths = pathsOf(items);
        m_means.clipboard.setFiles(paths);
        return tell(paths.size() == 1
                ? tr("Copied 1 capture")
                : tr("Copied %Ln captures", nullptr, Words::count(paths.size())),
            copied);
    }
    if (items.isEmpty() || !m_means.shots.copy)
        return;
    withShot(items.first(), [this](const FinishedCapture& capture) {
        m_means.shots.copy(capture).then([self = QPointer(this)](const Result<QString>& told) {
            if (self)
                self->tell(told ? *told : told.error().message, told ? copied : failure);
        });
    });
}

void HistoryActions::drag(const QList<HistoryItem>& items, QWidget& from)
{
    QList<QUrl> urls;
    for (const QString& path : pathsOf(items))
        urls.append(QUrl::fromLocalFile(path));
    if (urls.isEmpty())
        return;
    auto* data = new QMimeData;
    data->setUrls(urls);
    auto* drag = new QDrag(&from);
    drag->setMimeData(data);
    if (const auto thumbnail = m_means.store.thumbnail(items.first())) {
        const double scale = from.devicePixelRatioF();
        QPixmap picture = QPixmap::fromImage(thumbnail->image.scaled(
            dragged * scale, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        picture.setDevicePixelRatio(scale);
        drag->setPixmap(picture);
        drag->setHotSpot(QRectF({}, picture.deviceIndependentSize()).center().toPoint());
    }
    drag->exec(Qt::CopyAction);
}

void HistoryActions::remove(const QList<HistoryItem>& items, QWidget& asking)
{
    const auto removeAll = [this, items] {
        for (const auto& item : items)
            m_means.store.remove(item,
                item == items.last() ? HistoryStore::Persist::Now : HistoryStore::Persist::Later);
    };
    if (items.size() == 1)
        return removeAll();
    if (!items.isEmpty())
        ask(asking,
            tr("Remove %Ln captures from the history?", nullptr, Words::count(items.size())),
            tr("Remove"), removeAll);
}

void HistoryActions::clear(QWidget& asking)
{
    const int count = Words::count(m_means.store.items().size());
    ask(asking,
        count == 1 ? tr("Remove the only capture from the history?")
                   : tr("Remove all %Ln captures from the history?", nullptr, count),
        tr("Clear History"), [this] { m_means.store.clear(); });
}

void HistoryActions::ask(QWidget& asking, const QString& question, const QString& action,
    std::function<void()> confirmed)
{
    auto* box
        = new QMessageBox(QMessageBox::NoIcon, action, question, QMessageBox::Cancel, &asking);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setInformativeText(
        tr("Files that you saved stay where they are. Captures that are only here are gone then."));
    const QPushButton* yes = box->addButton(action, QMessageBox::DestructiveRole);
    box->setDefaultButton(QMessageBox::Cancel);
    connect(yes, &QPushButton::clicked, this, std::move(confirmed));
    box->open();
}

void HistoryActions::openFolder()
{
    const QString folder = m_means.prefs.saveFolder();
    Files::ensureFolder(folder);
    m_means.workspace.open(folder).then([self = QPointer(this)](const Result<void>& opened) {
        if (self && !opened && !opened.error().isCancelled())
            self->tell(tr("Couldn't open the folder"), failure, opened.error().message);
    });
}

void HistoryActions::fill(QMenu& menu, const QList<HistoryItem>& items, QWidget& asking)
{
    const HistoryItem& first = items.first();
    const bool isOne = items.size() == 1;
    const Theme& theme = m_means.themes.current();
    const auto add = [&](const QString& title, const QString& symbol, bool offered, auto act) {
        auto* action = menu.addAction(Icons::icon(symbol, theme.text, theme.onAccent), title);
        action->setEnabled(offered);
        connect(action, &QAction::triggered, this, act);
        return action;
    };
    add(tr("Open in Editor"), u"pencil"_s, isOne && canEdit(), [=, this] { edit(first); });
    add(tr("Copy"), copied, !isOne || m_means.shots.copy, [=, this] {
        copy(items);
    })->setShortcut(QKeySequence::Copy);
    add(tr("Pin to Screen"), u"pin"_s, bool(m_means.shots.pin), [=, this] {
        for (const auto& item : items)
            pin(item);
    });
    add(m_means.words.showInFolder, u"folder"_s, isOne, [=, this] { reveal(first); });
    menu.addSeparator();
    add(tr("Remove from History"), u"trash"_s, true, [=, this, asking = QPointer(&asking)] {
        if (asking)
            remove(items, *asking);
    })->setShortcut(QKeySequence::Delete);
}
