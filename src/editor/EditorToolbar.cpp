// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/EditorToolbar.h"

#include "base/Words.h"
#include "editor/AnnotationKind.h"
#include "editor/ColorWell.h"
#include "editor/TextStyles.h"
#include "editor/Tools.h"
#include "widgets/Accessible.h"
#include "widgets/Mirrored.h"
#include "widgets/SegmentedControl.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPainter>

using namespace Qt::StringLiterals;

/// From what hides first where the toolbar is too narrow.
enum class EditorToolbar::Item {
    Zoom,
    TextStyle,
    Share,
    Pin,
    Fun,
    Redo,
    Sticker,
    Stroke,
    Save,
    Copy,
    Undo,
    Color,
    Tools,
};

namespace {

constexpr std::array strokeWidths {1, 2, 3, 4, 6, 8, 12, 16, 24}; // Pixels of the picture.

using Command = EditorCommands::Command;
using Gap = OverflowRow::Gap;

/// Adds a choice of several things to a menu, as another menu.
template <typename Choose>
void addChoice(QMenu& menu, const QComboBox& choice, Choose choose)
{
    QMenu* const items = menu.addMenu(choice.accessibleName());
    for (int index = 0; index < choice.count(); ++index) {
        QAction* const item
            = items->addAction(choice.itemText(index), &choice, [choose, index] { choose(index); });
        item->setCheckable(true);
        item->setChecked(index == choice.currentIndex());
    }
}

QComboBox* newChoice(const QString& name, const QString& help)
{
    auto* choice = new QComboBox;
    choice->setAccessibleName(name);
    choice->setToolTip(help);
    choice->setFocusPolicy(Qt::TabFocus); // A click leaves the keyboard with the canvas.
    choice->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    return choice;
}

} // namespace

EditorToolbar::EditorToolbar(
    const Surroundings& surroundings, EditorCommands& commands, QMenu& funMenu)
    : m_surroundings(surroundings)
    , m_commands(commands)
    , m_row(new OverflowRow(surroundings.themes))
{
    setObjectName(u"PixmallowEditor"_s);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(Space::related, Space::tiny, Space::related, Space::tiny + 1);
    layout->addWidget(m_row);
    addCommand(Command::Undo, Gap::Related, Item::Undo);
    addCommand(Command::Redo, Gap::Related, Item::Redo);
    addTools();
    addColor();
    addStroke();
    addZoom();
    addCommand(Command::Pin, Gap::Group, Item::Pin);
    addCommand(Command::Save, Gap::Related, Item::Save);
    addCommand(Command::Copy, Gap::Related, Item::Copy);
    addCommand(Command::Share, Gap::Related, Item::Share);
    addTextStyle();
    addCommand(Command::Sticker, Gap::Related, Item::Sticker);
    addFun(funMenu);
    connect(&surroundings.themes, &Themes::changed, this, qOverload<>(&QWidget::update));
}

void EditorToolbar::setTool(Tool tool)
{
    m_tools->setCurrent(int(tool));
}

void EditorToolbar::setSettings(const ToolSettings& settings)
{
    m_color->setColor(settings.color);
    m_stroke->setCurrentIndex(m_stroke->findData(settings.strokeWidth));
    m_textStyle->setCurrentIndex(m_textStyle->findData(settings.textStyle));
}

QWidget& EditorToolbar::anchor(Command command)
{
    return m_row->anchor(*m_buttons.at(command));
}

QSize EditorToolbar::minimumSizeHint() const
{
    return QWidget::minimumSizeHint();
}

void EditorToolbar::add(QWidget* control, Gap gap, Item item, OverflowRow::Entry entry)
{
    m_row->add(control, gap, int(item), std::move(entry));
}

void EditorToolbar::addCommand(Command command, Gap gap, Item item)
{
    QAction& action = m_commands[command];
    auto* button = GlassButton::ofSymbol(m_surroundings.themes, EditorCommands::symbolOf(command),
        action.toolTip(), GlassButton::Look::Plain);
    button->setAccessibleName(action.text());
    button->setSymbolExtent({Extent::control, Extent::control});
    const auto follow = [button, &action] { button->setEnabled(action.isEnabled()); };
    connect(button, &QAbstractButton::clicked, &action, &QAction::trigger);
    connect(&action, &QAction::changed, button, follow);
    m_buttons.at(command) = button;
    add(button, gap, item, [&action](QMenu& menu) { menu.addAction(&action); });
}

void EditorToolbar::addTools()
{
    QList<SegmentedControl::Segment> segments;
    for (const ToolInfo& info : tools())
        segments << SegmentedControl::Segment {info.symbol, {}, Words::tr(info.tooltip)};
    m_tools = new SegmentedControl(m_surroundings.themes, tr("Tools"), segments);
    connect(m_tools, &SegmentedControl::chosen, this, [this](int index) {
        const bool isKnown = index >= 0 && std::size_t(index) < allTools.size();
        Q_EMIT toolChosen(isKnown ? allTools.at(std::size_t(index)) : Tool::Arrow);
    });
    add(m_tools, Gap::Group, Item::Tools, [](QMenu&) {});
}

void EditorToolbar::addColor()
{
    m_color = new ColorWell(m_surroundings);
    connect(m_color, &ColorWell::chosen, this, &EditorToolbar::colorChosen);
    add(m_color, Gap::Group, Item::Color, [this](QMenu& menu) {
        menu.addAction(tr("Colour…"), this, [this] { m_color->open(m_row->anchor(*m_color)); });
    });
}

void EditorToolbar::addStroke()
{
    m_stroke = newChoice(tr("Thickness"), tr("Thickness"));
    for (const int width : strokeWidths)
        m_stroke->addItem(tr("%1 px").arg(width), double(width));
    const auto choose = [this](int index) {
        m_stroke->setCurrentIndex(index);
        Q_EMIT strokeChosen(m_stroke->itemData(index).toDouble());
    };
    connect(m_stroke, &QComboBox::activated, this, choose);
    add(m_stroke, Gap::Related, Item::Stroke,
        [this, choose](QMenu& menu) { addChoice(menu, *m_stroke, choose); });
    Accessible::label(*m_stroke, tr("Thickness"));
}

void EditorToolbar::addZoom()
{
    static constexpr std::array commands {Command::ZoomOut, Command::Fit, Command::ZoomIn};
    QList<SegmentedControl::Segment> segments;
    for (const Command command : commands)
        segments << SegmentedControl::Segment {
            EditorCommands::symbolOf(command), {}, m_commands[command].toolTip()};
    auto* zoom = new SegmentedControl(
        m_surroundings.themes, tr("Zoom"), segments, SegmentedControl::Mode::Press);
    connect(zoom, &SegmentedControl::chosen, this,
        [this](int index) { m_commands[commands.at(std::size_t(index))].trigger(); });
    add(zoom, Gap::Group, Item::Zoom, [this](QMenu& menu) {
        menu.addSeparator();
        for (const Command command : commands)
            menu.addAction(&m_commands[command]);
        menu.addSeparator();
    });
}

void EditorToolbar::addTextStyle()
{
    m_textStyle = newChoice(tr("Text style"), tr("Text style (TikTok, neon, meme…)"));
    for (const TextLook& look : TextStyles::all())
        m_textStyle->addItem(u"%1 · %2"_s.arg(Words::tr(look.name.data()), Words::tr(look.effect)),
            QString(look.name));
    const auto choose = [this](int index) {
        m_textStyle->setCurrentIndex(index);
        Q_EMIT textStyleChosen(m_textStyle->itemData(index).toString());
    };
    connect(m_textStyle, &QComboBox::activated, this, choose);
    add(m_textStyle, Gap::Group, Item::TextStyle,
        [this, choose](QMenu& menu) { addChoice(menu, *m_textStyle, choose); });
    Accessible::label(*m_textStyle, tr("Text style"));
}

void EditorToolbar::addFun(QMenu& menu)
{
    auto* button = GlassButton::ofSymbol(m_surroundings.themes, u"party.popper"_s,
        tr("Meme caption, emoji face cover"), GlassButton::Look::Plain);
    button->setSymbolExtent({Extent::control, Extent::control});
    connect(button, &QAbstractButton::clicked, this,
        [button, &menu] { menu.popup(placeBelow(*button, menu)); });
    add(button, Gap::Related, Item::Fun, [&menu](QMenu& more) { more.addMenu(&menu); });
}

void EditorToolbar::paintEvent(QPaintEvent*)
{
    const Theme& theme = m_surroundings.themes.current();
    QPainter painter(this);
    painter.fillRect(rect(), theme.window);
    painter.fillRect(0, height() - 1, width(), 1, theme.hairline);
}
