// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>

/// The editor's tools, in the order of its tool selector. A tool that makes annotations is also
/// what kind they are of; kept edits tell that by these numbers, so none may ever mean another.
enum class Tool {
    Select = 0,
    Arrow = 1,
    Rect = 2,
    Ellipse = 3,
    Line = 4,
    Pen = 5,
    Highlighter = 6,
    Text = 7,
    Step = 8,
    Sticker = 9,
    Blur = 10,
    Redact = 11,
    Crop = 12,
};

inline constexpr std::array allTools {Tool::Select, Tool::Arrow, Tool::Rect, Tool::Ellipse,
    Tool::Line, Tool::Pen, Tool::Highlighter, Tool::Text, Tool::Step, Tool::Sticker, Tool::Blur,
    Tool::Redact, Tool::Crop};
