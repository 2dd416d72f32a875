// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SettingsWindow.h"

#include "ui/settings/SettingsPages.h"
#include "widgets/Enlarged.h"
#include "widgets/PanelPlacement.h"
#include "widgets/Sidebar.h"

#include <QCursor>
#include <QHBoxLayout>
#include <QKeyEvent>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize usualPage(540, 520); // Points, beside the list.
constexpr QSize smallest(620, 400);

struct PageInfo {
    QLatin1String symbol;
    QLatin1String name;
    void (*fill)(SettingsPage&, const SettingsMeans&);
};

constexpr std::array<PageInfo, 9> pages {{
    {QLatin1String("gearshape"), QLatin1String("General"), SettingsPages::fillGeneral},
    {QLatin1String("camera"), QLatin1String("Capture"), SettingsPages::fillCapture},
    {QLatin1String("photo.on.rectangle.angled"), QLatin1String("Preview"),
        SettingsPages::fillPreview},
    {QLatin1String("speaker.wave.2"), QLatin1String("Sound"), SettingsPages::fillSound},
    {QLatin1String("keyboard"), QLatin1String("Shortcuts"), SettingsPages::fillShortcuts},
    {QLatin1String("sparkles"), QLatin1String("Fun"), SettingsPages::fillFun},
    {QLatin1String("arrow.down.circle"), QLatin1String("Updates"), SettingsPages::fillUpdates},
    {QLatin1String("checkmark.circle"), QLatin1String("Diagnosis"), SettingsPages::fillDiagnosis},
    {QLatin1String("info.circle"), QLatin1String("About"), SettingsPages::fillAbout},
}};

} // namespace

SettingsWindow::SettingsWindow(SettingsMeans means)
    : m_means(std::move(means))
    , m_sidebar(new Sidebar(m_means.themes))
    , m_pages(new QStackedWidget)
    , m_made(pages.size(), nullptr)
{
    setWindowTitle(u"Settings"_s);
    const Theme& theme = m_means.themes.current();
    resize(m_sidebar->width() + enlarged(usualPage.width(), theme),
        enlarged(usualPage.height(), theme));
    setMinimumSize(smallest);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(0);
    row->addWidget(m_sidebar);
    row->addWidget(m_pages, 1);
    m_sidebar->setAccessibleName(u"Pages"_s);
    for (const PageInfo& page : pages)
        m_sidebar->addPage(page.symbol, page.name);
    connect(m_sidebar, &QListWidget::currentRowChanged, this, &SettingsWindow::showPage);
    m_sidebar->setCurrentRow(0);
    m_sidebar->setFocus();
}

QStringList SettingsWindow::pageNames()
{
    QStringList names;
    for (const PageInfo& page : pages)
        names << page.name;
    return names;
}

void SettingsWindow::present()
{
    if (!isVisible()) {
        const auto screen = PanelPlacement::under(QCursor::pos(), PanelPlacement::screens());
        const QSize room = screen.workArea.size() - QSize(2 * Space::wide, 2 * Space::wide);
        setGeometry(PanelPlacement::centred(screen, size().boundedTo(room)));
        m_sidebar->setFocus();
    }
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void SettingsWindow::show(Page page)
{
    m_sidebar->setCurrentRow(int(page));
}

void SettingsWindow::showPage(int index)
{
    const PageInfo& info = pages.at(std::size_t(index));
    if (!m_made[index]) {
        auto* page = new SettingsPage(m_means.themes, m_means.prefs, info.name);
        page->setAccessibleName(info.name);
        info.fill(*page, m_means);
        m_pages->addWidget(page);
        m_made[index] = page;
    }
    m_pages->setCurrentWidget(m_made[index]);
}

void SettingsWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape || event->matches(QKeySequence::Close))
        close();
    else
        QWidget::keyPressEvent(event);
}
