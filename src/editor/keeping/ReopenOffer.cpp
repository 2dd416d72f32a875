// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/keeping/ReopenOffer.h"

#include "editor/keeping/ReopenView.h"
#include "widgets/Accessible.h"

ReopenOffer::ReopenOffer(const Surroundings& surroundings, KeptEdits& edits, KeptEdits::Reopen open)
    : m_surroundings(surroundings)
    , m_edits(edits)
    , m_open(std::move(open))
{
    connect(&edits, &KeptEdits::leftBehindChanged, this, &ReopenOffer::follow);
}

ReopenOffer::~ReopenOffer() = default;

void ReopenOffer::show()
{
    if (m_edits.leftBehind() == 0)
        return;
    make();
    m_panel->presentBottomRight(Space::group);
    Accessible::announce(*m_panel);
}

void ReopenOffer::make()
{
    m_panel = std::make_unique<FloatingPanel>(m_surroundings, tr("Reopen edits"));
    auto* view = new ReopenView(m_surroundings.themes, m_edits.leftBehind());
    // Each answer closes the card: what was left behind is so no more.
    connect(view, &ReopenView::reopenWanted, this, [this] { m_edits.reopen(m_open); });
    connect(view, &ReopenView::discardWanted, this, [this] { m_edits.discardLeftBehind(); });
    connect(view, &ReopenView::laterWanted, this, &ReopenOffer::close);
    connect(m_panel.get(), &FloatingPanel::escaped, this, &ReopenOffer::close);
    m_panel->host(view);
}

void ReopenOffer::close()
{
    if (m_panel)
        m_panel->fadeOut([this] { m_panel.release()->deleteLater(); });
}

void ReopenOffer::follow()
{
    if (m_edits.leftBehind() == 0)
        close();
}
