// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/EditorCommands.h"

#include "widgets/Icons.h"

#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

struct Info {
    QLatin1String symbol;
    const char* label;
    QLatin1String keys; ///< Of which the first is told; may be empty.
    const char* help = nullptr; ///< Else the label.
};

constexpr std::array<Info, EditorCommands::Count> infos {{
    {"arrow.uturn.backward"_L1, QT_TRANSLATE_NOOP("EditorCommands", "Undo"), "Ctrl+Z"_L1},
    {"arrow.uturn.forward"_L1, QT_TRANSLATE_NOOP("EditorCommands", "Redo"),
        "Ctrl+Shift+Z; Ctrl+Y"_L1},
    {"minus.magnifyingglass"_L1, QT_TRANSLATE_NOOP("EditorCommands", "Zoom out"), "Ctrl+-"_L1},
    {"arrow.up.left.and.down.right.magnifyingglass"_L1, QT_TRANSLATE_NOOP("EditorCommands", "Fit"),
        "Ctrl+0"_L1},
    {"plus.magnifyingglass"_L1, QT_TRANSLATE_NOOP("EditorCommands", "Zoom in"),
        "Ctrl++; Ctrl+="_L1},
    {"pin"_L1, QT_TRANSLATE_NOOP("EditorCommands", "Pin"), ""_L1},
    {"square.and.arrow.down"_L1, QT_TRANSLATE_NOOP("EditorCommands", "Save"), "Ctrl+S"_L1},
    {"doc.on.doc"_L1, QT_TRANSLATE_NOOP("EditorCommands", "Copy"), "Ctrl+C"_L1},
    {"square.and.arrow.up"_L1, QT_TRANSLATE_NOOP("EditorCommands", "Share"), ""_L1},
    {"sparkles"_L1, QT_TRANSLATE_NOOP("EditorCommands", "Sticker"), ""_L1,
        QT_TRANSLATE_NOOP("EditorCommands", "Emoji and text stickers")},
    {"xmark"_L1, QT_TRANSLATE_NOOP("EditorCommands", "Close"), "Ctrl+W"_L1},
}};

} // namespace

EditorCommands::EditorCommands(const Themes& themes, QWidget& window)
    : m_themes(themes)
{
    for (std::size_t index = 0; index < Count; ++index) {
        const Info& info = infos.at(index);
        auto* action = new QAction(tr(info.label), this);
        action->setShortcuts(QKeySequence::listFromString(info.keys));
        const QString help = tr(info.help ? info.help : info.label);
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
