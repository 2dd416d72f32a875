// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/gallery/ControlScenes.h"

#include "widgets/Icons.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

/// Widgets beside each other, the last one disabled.
QWidget* row(const QList<QWidget*>& widgets)
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins({});
    layout->setSpacing(Space::inner);
    for (QWidget* widget : widgets)
        layout->addWidget(widget);
    layout->addStretch();
    widgets.last()->setEnabled(false);
    return row;
}

QPushButton* button(const QString& text, bool isDefault = false)
{
    auto* button = new QPushButton(text);
    button->setDefault(isDefault);
    return button;
}

QToolButton* tool(GalleryWorld& world, const QString& symbol, bool isChosen = false)
{
    const Theme& theme = world.themes.current();
    auto* tool = new QToolButton;
    tool->setIcon(Icons::icon(symbol, theme.text, theme.onAccent));
    tool->setAutoRaise(true);
    tool->setCheckable(true);
    tool->setChecked(isChosen);
    return tool;
}

QComboBox* choice(const QString& text)
{
    auto* choice = new QComboBox;
    choice->addItem(text);
    return choice;
}

QLineEdit* line(const QString& text)
{
    auto* line = new QLineEdit(text);
    line->setPlaceholderText(u"Search"_s);
    return line;
}

QSpinBox* number(int value)
{
    auto* number = new QSpinBox;
    number->setSuffix(u" s"_s);
    number->setValue(value);
    return number;
}

template <typename Check>
Check* check(const QString& text, bool isChecked)
{
    auto* check = new Check(text);
    check->setAutoExclusive(false);
    check->setChecked(isChecked);
    return check;
}

QSlider* slider(int value)
{
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setValue(value);
    return slider;
}

QListWidget* list()
{
    auto* list = new QListWidget;
    list->addItems({u"First"_s, u"Second"_s, u"Third"_s, u"Fourth"_s, u"Fifth"_s, u"Sixth"_s});
    list->setCurrentRow(1);
    list->setFixedSize(140, 90);
    return list;
}

QProgressBar* progress()
{
    auto* bar = new QProgressBar;
    bar->setValue(60);
    bar->setTextVisible(false);
    return bar;
}

} // namespace

std::unique_ptr<QWidget> ControlScenes::controls(GalleryWorld& world)
{
    auto widget = std::make_unique<QWidget>();
    auto* column = new QVBoxLayout(widget.get());
    column->setContentsMargins(Space::window, Space::window, Space::window, Space::window);
    column->setSpacing(Space::inner);
    column->addWidget(row({button(u"Save"_s, true), button(u"Cancel"_s), button(u"Disabled"_s)}));
    auto* caption = tool(world, u"pencil"_s);
    caption->setText(u"Edit"_s);
    caption->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    column->addWidget(row({tool(world, u"crop"_s), tool(world, u"arrow.up.right"_s, true), caption,
        tool(world, u"trash"_s)}));
    column->addWidget(row({choice(u"Comet"_s), choice(u"A longer choice"_s), choice(u"None"_s)}));
    column->addWidget(row({line(u"Pixie"_s), line({}), line(u"Disabled"_s)}));
    column->addWidget(row({number(6), number(0), number(3)}));
    column->addWidget(row({check<QCheckBox>(u"On"_s, true), check<QCheckBox>(u"Off"_s, false),
        check<QCheckBox>(u"Disabled"_s, true)}));
    column->addWidget(row({check<QRadioButton>(u"On"_s, true), check<QRadioButton>(u"Off"_s, false),
        check<QRadioButton>(u"Disabled"_s, true)}));
    column->addWidget(row({slider(60), progress(), slider(30)}));
    column->addWidget(row({list(), list()}));
    return widget;
}

std::unique_ptr<QWidget> ControlScenes::menu(GalleryWorld& world)
{
    const Theme& theme = world.themes.current();
    auto menu = std::make_unique<QMenu>();
    const auto add = [&](const QString& symbol, const QString& text) {
        return menu->addAction(Icons::icon(symbol, theme.text, theme.onAccent), text);
    };
    add(u"rectangle.dashed"_s, u"Capture region\t⌃⇧1"_s);
    menu->setActiveAction(add(u"macwindow"_s, u"Capture window\t⌃⇧2"_s));
    add(u"timer"_s, u"Delayed capture (3 s)\t⌃⇧4"_s)->setEnabled(false);
    menu->addSeparator();
    QAction* checked = menu->addAction(u"Checked"_s);
    checked->setCheckable(true);
    checked->setChecked(true);
    menu->addMenu(u"More"_s);
    menu->addSeparator();
    add(u"power"_s, u"Quit Pixmallow"_s);
    return menu;
}
