// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/ImageDrops.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace {

QStringList filesOf(const QMimeData& dragged)
{
    QStringList paths;
    for (const QUrl& url : dragged.urls())
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    return paths;
}

} // namespace

ImageDrops::ImageDrops(QWidget& widget, Dropped dropped)
    : QObject(&widget)
    , m_dropped(std::move(dropped))
{
    widget.setAcceptDrops(true);
    widget.installEventFilter(this);
}

bool ImageDrops::eventFilter(QObject* watched, QEvent* event)
{
    const bool isDrop = event->type() == QEvent::Drop;
    if (!isDrop && event->type() != QEvent::DragEnter)
        return QObject::eventFilter(watched, event);
    auto* const drag = static_cast<QDropEvent*>(event);
    const QStringList paths = filesOf(*drag->mimeData());
    if (paths.isEmpty())
        return QObject::eventFilter(watched, event);
    // The file stays where it is, whatever was proposed.
    drag->setDropAction(Qt::CopyAction);
    drag->accept();
    if (isDrop)
        QMetaObject::invokeMethod(
            this, [this, paths] { m_dropped(paths); }, Qt::QueuedConnection);
    return true;
}
