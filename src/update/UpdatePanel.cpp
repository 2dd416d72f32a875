// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "update/UpdatePanel.h"

#include "widgets/PanelPlacement.h"

#include <QCursor>
#include <QPointer>

UpdatePanel::UpdatePanel(const Themes& themes, Updater& updater)
    : m_themes(themes)
    , m_updater(updater)
{
    connect(&updater, &Updater::panelWanted, this, &UpdatePanel::show);
    connect(&updater, &Updater::received, this, [this](qint64 bytes, qint64 total) {
        if (m_view)
            m_view->setReceived(bytes, total);
    });
}

UpdatePanel::~UpdatePanel() = default;

void UpdatePanel::show(const UpdateInfo& info)
{
    if (m_installing) // It is being dealt with.
        return m_view->raise();
    m_view.reset(new UpdateView(m_themes, info, m_updater.currentVersion()));
    m_view->setWindowTitle(tr("Pixmallow Update"));
    m_view->setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint
        | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    connect(m_view.get(), &UpdateView::installWanted, this, [this, info] { install(info); });
    connect(m_view.get(), &UpdateView::laterWanted, this, &UpdatePanel::close);
    connect(m_view.get(), &UpdateView::closed, this, [this] {
        m_updater.cancelInstall();
        m_view.reset();
    });
    connect(m_view.get(), &UpdateView::skipWanted, this, [this, info] {
        m_updater.skip(info.version);
        close();
    });
    m_view->adjustSize();
    const auto screen = PanelPlacement::under(QCursor::pos(), PanelPlacement::screens());
    m_view->move(PanelPlacement::centred(screen, m_view->size()).topLeft());
    m_view->show();
    m_view->raise();
    m_view->activateWindow();
    m_view->setFocus(); // Return and Esc do the usual.
}

void UpdatePanel::install(const UpdateInfo& info)
{
    m_installing = true;
    m_view->setInstalling(true);
    const auto tell = [panel = QPointer(this)](const QString& stage) {
        if (panel && panel->m_view)
            panel->m_view->setStage(stage);
    };
    m_updater.install(info, tell).then([panel = QPointer(this)](const Result<void>& installed) {
        if (!panel)
            return;
        panel->m_installing = false;
        if (panel->m_view)
            panel->m_view->setInstalling(false);
        if (panel->m_view && !installed && installed.error().isCancelled())
            panel->m_view->setStage({});
    });
}

/// While a version is being downloaded that ends, and the window stays.
void UpdatePanel::close()
{
    if (m_installing)
        m_updater.cancelInstall();
    else
        m_view.reset();
}
