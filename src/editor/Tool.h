// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>

/// The editor's tools, in the order of its tool selector. A tool that makes annotations is also
/// what kind they are of.
enum class Tool {
    Select,
    Arrow,
    Rect,
    Ellipse,
    Line,
    Pen,
    Highlighter,
    Text,
    Step,
    Sticker,
    Blur,
    Redact,
    Crop,
};

inline constexpr std::array allTools {Tool::Select, Tool::Arrow, Tool::Rect, Tool::Ellipse,
    Tool::Line, Tool::Pen, Tool::Highlighter, Tool::Text, Tool::Step, Tool::Sticker, Tool::Blur,
    Tool::Redact, Tool::Crop};
