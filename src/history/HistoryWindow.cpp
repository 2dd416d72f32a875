// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryWindow.h"

#include "widgets/Enlarged.h"
#include "widgets/PanelPlacement.h"

#include <QCursor>

namespace {

constexpr QSize usualSize(900, 640);
constexpr QSize leastSize(520, 360);

} // namespace

HistoryWindow::HistoryWindow(HistoryActions::Means means, TextIndex& texts)
    : m_themes(means.themes)
    , m_store(means.store)
    , m_texts(texts)
    , m_actions(std::move(means))
{
}

HistoryWindow::~HistoryWindow()
{
    delete m_view;
}

void HistoryWindow::show()
{
    if (!m_view) {
        m_view = new HistoryView({m_themes, m_store, m_actions, m_texts});
        m_view->setAttribute(Qt::WA_DeleteOnClose);
        m_view->setWindowTitle(tr("History"));
        m_view->setMinimumSize(leastSize);
        const auto screen = PanelPlacement::under(QCursor::pos(), PanelPlacement::screens());
        const QSize room = screen.workArea.size() - QSize(2 * Space::wide, 2 * Space::wide);
        const Theme& theme = m_themes.current();
        const QSize size(enlarged(usualSize.width(), theme), enlarged(usualSize.height(), theme));
        m_view->setGeometry(PanelPlacement::centred(screen, size.boundedTo(room)));
        connect(m_view, &HistoryView::captureWanted, this, &HistoryWindow::captureWanted);
    }
    if (m_view->isMinimized())
        m_view->showNormal();
    m_view->show();
    m_view->raise();
    m_view->activateWindow();
}
