// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "preview/PreviewPanel.h"

#include "widgets/Accessible.h"

using namespace Qt::StringLiterals;

PreviewPanel::PreviewPanel(const Surroundings& surroundings, const Prefs& prefs, Fun& fun,
    ShotActions actions, QString revealTitle)
    : m_surroundings(surroundings)
    , m_prefs(prefs)
    , m_fun(fun)
    , m_actions(std::move(actions))
    , m_revealTitle(std::move(revealTitle))
{
}

PreviewPanel::~PreviewPanel()
{
    for (const auto* panel : m_panels)
        delete panel;
}

void PreviewPanel::show(const FinishedCapture& capture, const QString& info)
{
    closeAll();
    const auto reaction
        = m_prefs.get(Prefs::keys.petReactions) ? m_fun.takeReaction() : std::nullopt;
    auto* panel = new FloatingPanel(m_surroundings, u"Pixmallow"_s);
    auto* view = new PreviewView(
        m_surroundings.themes, m_prefs, m_actions, {capture, info, reaction, m_revealTitle});
    QObject::connect(view, &PreviewView::closeRequested, panel, [this, panel] { close(panel); });
    QObject::connect(panel, &FloatingPanel::escaped, panel, [this, panel] { close(panel); });
    panel->host(view);
    panel->presentBottomRight(Space::group);
    panel->setAccessibleName(QObject::tr("Screenshot: %1").arg(info));
    Accessible::announce(*panel);
    m_panels.push_back(panel);
}

void PreviewPanel::close(FloatingPanel* panel)
{
    panel->fadeOut([this, panel] {
        std::erase(m_panels, panel);
        panel->deleteLater();
    });
}

void PreviewPanel::closeAll()
{
    for (auto* panel : m_panels) {
        panel->hide();
        panel->deleteLater();
    }
    m_panels.clear();
}
