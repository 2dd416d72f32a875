// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/EditorCommands.h"

#include "widgets/Icons.h"

#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

struct Info {
    QLatin1String symbol;
    QLatin1String label;
    QLatin1String keys; ///< Of which the first is told; may be empty.
    QLatin1String help {}; ///< The label where it is empty.
};

constexpr std::array<Info, EditorCommands::Count> infos {{
    {"arrow.uturn.backward"_L1, "Undo"_L1, "Ctrl+Z"_L1},
    {"arrow.uturn.forward"_L1, "Redo"_L1, "Ctrl+Shift+Z; Ctrl+Y"_L1},
    {"minus.magnifyingglass"_L1, "Zoom out"_L1, "Ctrl+-"_L1},
    {"arrow.up.left.and.down.right.magnifyingglass"_L1, "Fit"_L1, "Ctrl+0"_L1},
    {"plus.magnifyingglass"_L1, "Zoom in"_L1, "Ctrl++; Ctrl+="_L1},
    {"pin"_L1, "Pin"_L1, ""_L1},
    {"square.and.arrow.down"_L1, "Save"_L1, "Ctrl+S"_L1},
    {"doc.on.doc"_L1, "Copy"_L1, "Ctrl+C"_L1},
    {"square.and.arrow.up"_L1, "Share"_L1, ""_L1},
    {"sparkles"_L1, "Sticker"_L1, ""_L1, "Emoji and text stickers"_L1},
    {"xmark"_L1, "Close"_L1, "Ctrl+W"_L1},
}};

} // namespace

EditorCommands::EditorCommands(const Themes& themes, QWidget& window)
    : m_themes(themes)
{
    for (std::size_t index = 0; index < Count; ++index) {
        const Info& info = infos.at(index);
        auto* action = new QAction(info.label, this);
        action->setShortcuts(QKeySequence::listFromString(info.keys));
        const QString help = info.help.isEmpty() ? info.label : info.help;
        const QString keys = action->shortcut().toString(QKeySequence::NativeText);
        action->setToolTip(keys.isEmpty() ? help : u"%1 (%2)"_s.arg(help, keys));
        window.addAction(action);
        m_actions.at(index) = action;
    }
    connect(&m_themes, &Themes::changed, this, &EditorCommands::adoptTheme);
    adoptTheme();
}

QString EditorCommands::symbolOf(Command command)
{
    return infos.at(command).symbol;
}

void EditorCommands::adoptTheme()
{
    const Theme& theme = m_themes.current();
    for (std::size_t index = 0; index < Count; ++index)
        m_actions.at(index)->setIcon(
            Icons::icon(infos.at(index).symbol, theme.text, theme.onAccent));
}
