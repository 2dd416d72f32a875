// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/Sidebar.h"

#include "widgets/Enlarged.h"
#include "widgets/Icons.h"

namespace {

constexpr int sidebarWidth = 180; // Points.
constexpr int rowHeight = 32;
constexpr int symbolRole = Qt::UserRole;

} // namespace

Sidebar::Sidebar(const Themes& themes, QWidget* parent)
    : QListWidget(parent)
    , m_themes(themes)
{
    setFrameShape(QFrame::NoFrame);
    setViewportMargins(Space::related, Space::window, Space::related, Space::related);
    setAutoFillBackground(true); // The margins around the viewport, too.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    adoptTheme();
    connect(&m_themes, &Themes::changed, this, &Sidebar::adoptTheme);
}

void Sidebar::addPage(const QString& symbol, const QString& name)
{
    auto* item = new QListWidgetItem(name, this);
    item->setData(symbolRole, symbol);
    adoptTheme();
}

void Sidebar::adoptTheme()
{
    const Theme& theme = m_themes.current();
    QPalette colours = theme.palette();
    colours.setColor(QPalette::Base, theme.sidebar);
    colours.setColor(QPalette::Window, theme.sidebar);
    setPalette(colours);
    setFixedWidth(enlarged(sidebarWidth, theme));
    const int side = enlarged(Extent::smallSymbol, theme);
    setIconSize({side, side});
    const int height = std::max(rowHeight, theme.lineHeight(TextStyle::Body) + Space::related);
    for (int i = 0; i < count(); ++i) {
        const QString symbol = item(i)->data(symbolRole).toString();
        item(i)->setSizeHint({0, height});
        item(i)->setIcon(Icons::icon(symbol, theme.text, theme.onAccent));
    }
}
