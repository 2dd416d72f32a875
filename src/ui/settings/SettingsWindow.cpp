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

namespace {

constexpr QSize usualPage(540, 520); // Points, beside the list.
constexpr QSize smallest(620, 400);

struct PageInfo {
    QLatin1String symbol;
    const char* name;
    void (*fill)(SettingsPage&, const SettingsMeans&);
};

constexpr std::array<PageInfo, 9> pages {{
    {QLatin1String("gearshape"), QT_TRANSLATE_NOOP("SettingsWindow", "General"),
        SettingsPages::fillGeneral},
    {QLatin1String("camera"), QT_TRANSLATE_NOOP("SettingsWindow", "Capture"),
        SettingsPages::fillCapture},
    {QLatin1String("photo.on.rectangle.angled"), QT_TRANSLATE_NOOP("SettingsWindow", "Preview"),
        SettingsPages::fillPreview},
    {QLatin1String("speaker.wave.2"), QT_TRANSLATE_NOOP("SettingsWindow", "Sound"),
        SettingsPages::fillSound},
    {QLatin1String("keyboard"), QT_TRANSLATE_NOOP("SettingsWindow", "Shortcuts"),
        SettingsPages::fillShortcuts},
    {QLatin1String("sparkles"), QT_TRANSLATE_NOOP("SettingsWindow", "Fun"), SettingsPages::fillFun},
    {QLatin1String("arrow.down.circle"), QT_TRANSLATE_NOOP("SettingsWindow", "Updates"),
        SettingsPages::fillUpdates},
    {QLatin1String("checkmark.circle"), QT_TRANSLATE_NOOP("SettingsWindow", "Diagnosis"),
        SettingsPages::fillDiagnosis},
    {QLatin1String("info.circle"), QT_TRANSLATE_NOOP("SettingsWindow", "About"),
        SettingsPages::fillAbout},
}};

} // namespace

SettingsWindow::SettingsWindow(SettingsMeans means)
    : m_means(std::move(means))
    , m_sidebar(new Sidebar(m_means.themes))
    , m_pages(new QStackedWidget)
    , m_made(pages.size(), nullptr)
{
    setWindowTitle(tr("Settings"));
    const Theme& theme = m_means.themes.current();
    resize(m_sidebar->width() + enlarged(usualPage.width(), theme),
        enlarged(usualPage.height(), theme));
    setMinimumSize(smallest);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(0);
    row->addWidget(m_sidebar);
    row->addWidget(m_pages, 1);
    m_sidebar->setAccessibleName(tr("Pages"));
    for (const PageInfo& page : pages)
        m_sidebar->addPage(page.symbol, tr(page.name));
    connect(m_sidebar, &QListWidget::currentRowChanged, this, &SettingsWindow::showPage);
    m_sidebar->setCurrentRow(0);
    m_sidebar->setFocus();
}

QStringList SettingsWindow::pageNames()
{
    QStringList names;
    for (const PageInfo& page : pages)
        names << QString::fromLatin1(page.name);
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
        const QString name = tr(info.name);
        auto* page = new SettingsPage(m_means.themes, m_means.prefs, name);
        page->setAccessibleName(name);
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
