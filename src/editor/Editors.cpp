// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Editors.h"

#include <QFileInfo>

Editors::Editors(EditorMeans means)
    : m_means(std::move(means))
{
}

Editors::~Editors()
{
    qDeleteAll(m_windows);
}

EditorWindow& Editors::open(const FinishedCapture& capture)
{
    if (EditorWindow* const window = showing(capture)) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->raise();
        window->activateWindow();
        return *window;
    }
    auto* window = new EditorWindow(m_means, capture);
    connect(window, &EditorWindow::closed, this, [this, window] {
        m_windows.removeOne(window);
        window->deleteLater();
    });
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
        if (const auto rescued = window->rescueEdit(); !rescued)
            qWarning("pixmallow: an edit is lost: %s", qPrintable(rescued.error().message));
        window->discardEdit();
    }
}
