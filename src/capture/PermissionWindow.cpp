// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/PermissionWindow.h"

#include "widgets/PanelPlacement.h"

#include <QCoreApplication>
#include <QCursor>

namespace {

constexpr QSize contentSize(460, 420);

} // namespace

PermissionWindow::PermissionWindow(PermissionView::Sources sources)
    : m_sources(std::move(sources))
{
}

void PermissionWindow::show()
{
    if (!m_view)
        make();
    m_view->show();
    m_view->raise();
    m_view->activateWindow();
}

void PermissionWindow::relaunch()
{
    m_sources.workspace.relaunch();
    QCoreApplication::quit();
}

void PermissionWindow::make()
{
    m_view = std::make_unique<PermissionView>(m_sources);
    m_view->setWindowTitle(tr("Welcome to Pixmallow"));
    m_view->setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint
        | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    m_view->setFixedSize(contentSize.expandedTo(m_view->sizeHint())); // Large letters.
    const auto screen = PanelPlacement::under(QCursor::pos(), PanelPlacement::screens());
    m_view->setGeometry(PanelPlacement::centred(screen, m_view->size()));
    connect(m_view.get(), &PermissionView::closeWanted, m_view.get(), &QWidget::hide);
    connect(m_view.get(), &PermissionView::restartWanted, this, &PermissionWindow::relaunch);
}
