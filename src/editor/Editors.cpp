// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Editors.h"

#include "editor/ImageDrops.h"

#include <QFileInfo>
#include <QPointer>

Editors::Editors(EditorMeans means)
    : m_means(std::move(means))
{
}

Editors::~Editors()
{
    qDeleteAll(m_windows);
}

Pending<void> Editors::edit(const FinishedCapture& capture)
{
    auto [shown, answer] = Pending<void>::ask();
    const auto shared = std::make_shared<Pending<void>::Answer>(std::move(answer));
    const QPointer editors(this);
    m_means.edits.find(capture).then([editors, capture, shared](const auto& found) {
        if (!editors)
            return;
        if (!found || !*found)
            editors->open(capture);
        else
            editors->open({.shot = {(*found)->capture.shot.image, capture.shot.scale,
                               capture.shot.app, capture.shot.area},
                              .path = capture.path,
                              .historyId = capture.historyId},
                {.annotations = (*found)->annotations});
        (*shared)({});
    });
    return std::move(shown);
}

void Editors::reopen(const KeptEdit& edit, std::unique_ptr<EditJournal> journal)
{
    open(edit.capture, {edit.annotations, CanvasDocument::Adopted::Unsaved, std::move(journal)});
}

EditorWindow& Editors::open(const FinishedCapture& capture, ResumedEdit resumed)
{
    if (EditorWindow* const window = showing(capture)) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->raise();
        window->activateWindow();
        return *window;
    }
    auto* window = new EditorWindow(m_means, capture, std::move(resumed));
    connect(window, &EditorWindow::closed, this, [this, window] {
        m_windows.removeOne(window);
        window->deleteLater();
    });
    new ImageDrops(*window, [this](const QStringList& paths) { Q_EMIT filesDropped(paths); });
    m_windows << window;
    window->open();
    return *window;
}

/// Two editors of one file would overwrite each other's edits.
EditorWindow* Editors::showing(const FinishedCapture& capture) const
{
    for (EditorWindow* const window : m_windows) {
        if (!capture.historyId.isEmpty() && window->historyId() == capture.historyId)
            return window;
        if (!capture.path.isEmpty() && QFileInfo(window->path()) == QFileInfo(capture.path))
            return window;
    }
    return nullptr;
}

void Editors::closeNow()
{
    for (EditorWindow* const window : QList(m_windows)) {
        if (const auto rescued = window->rescueEdit(); !rescued) {
            qWarning("pixmallow: an edit is not saved: %s", qPrintable(rescued.error().message));
            m_windows.removeOne(window);
            delete window; // Its journal stays, to be offered at the next start.
            continue;
        }
        window->discardEdit();
    }
}
