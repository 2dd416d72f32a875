// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/Sidebar.h"

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
    setFixedWidth(sidebarWidth);
    setFrameShape(QFrame::NoFrame);
    setViewportMargins(Space::related, Space::window, Space::related, Space::related);
    setAutoFillBackground(true); // The margins around the viewport, too.
    setIconSize({Extent::smallSymbol, Extent::smallSymbol});
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    adoptTheme();
    connect(&m_themes, &Themes::changed, this, &Sidebar::adoptTheme);
}

void Sidebar::addPage(const QString& symbol, const QString& name)
{
    auto* item = new QListWidgetItem(name, this);
    item->setData(symbolRole, symbol);
    item->setSizeHint({0, rowHeight});
    adoptTheme();
}

void Sidebar::adoptTheme()
{
    const Theme& theme = m_themes.current();
    QPalette colours = theme.palette();
    colours.setColor(QPalette::Base, theme.sidebar);
    colours.setColor(QPalette::Window, theme.sidebar);
    setPalette(colours);
    for (int i = 0; i < count(); ++i) {
        const QString symbol = item(i)->data(symbolRole).toString();
        item(i)->setIcon(Icons::icon(symbol, theme.text, theme.onAccent));
    }
}
