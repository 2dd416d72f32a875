// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/GalleryWindow.h"

#include "base/Words.h"
#include "widgets/PanelPlacement.h"

#include <QCursor>

namespace {

constexpr QSize leastSize(760, 420); // Points; pet and calendar side by side.

} // namespace

GalleryWindow::GalleryWindow(const Themes& themes, Fun& fun)
    : m_themes(themes)
    , m_fun(fun)
{
}

GalleryWindow::~GalleryWindow()
{
    delete m_view;
}

void GalleryWindow::show()
{
    if (!m_view) {
        m_view = new GalleryView(m_themes, m_fun);
        m_view->setAttribute(Qt::WA_DeleteOnClose);
        m_view->setWindowTitle(Words::tr("Achievements"));
        m_view->setMinimumSize(leastSize);
        const auto screen = PanelPlacement::under(QCursor::pos(), PanelPlacement::screens());
        const QSize room = screen.workArea.size() - QSize(2 * Space::wide, 2 * Space::wide);
        m_view->setGeometry(PanelPlacement::centred(screen, m_view->sizeHint().boundedTo(room)));
    }
    if (m_view->isMinimized())
        m_view->showNormal();
    m_view->show();
    m_view->raise();
    m_view->activateWindow();
}
