// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "widgets/Theme.h"

#include <QAction>

#include <array>

/// What an editor's window can be told to do, each as one action for its button, menu and keys.
class EditorCommands final : public QObject {
    Q_OBJECT

public:
    enum Command {
        Undo,
        Redo,
        ZoomOut,
        Fit,
        ZoomIn,
        Pin,
        Save,
        Copy,
        Share,
        Sticker,
        Close,
        Count
    };

    EditorCommands(const Themes& themes, QWidget& window);

    QAction& operator[](Command command) { return *m_actions[command]; }

    /// The name in the table of icons.
    static QString symbolOf(Command command);

private:
    void adoptTheme();

    const Themes& m_themes;
    std::array<QAction*, Count> m_actions {};
};
