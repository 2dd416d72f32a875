// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Tools.h"

#include "editor/kinds/Arrow.h"
#include "editor/kinds/Blur.h"
#include "editor/kinds/Ellipse.h"
#include "editor/kinds/Highlighter.h"
#include "editor/kinds/Line.h"
#include "editor/kinds/Pen.h"
#include "editor/kinds/Rect.h"
#include "editor/kinds/Redact.h"
#include "editor/kinds/Step.h"
#include "editor/kinds/Sticker.h"
#include "editor/kinds/Text.h"

using namespace Qt::StringLiterals;

namespace {

template <typename Kind>
const AnnotationKind* only()
{
    static const Kind kind;
    return &kind;
}

} // namespace

std::span<const ToolInfo> tools()
{
    static const std::array<ToolInfo, allTools.size()> all {{
        {Tool::Select, u'v', "cursorarrow"_L1, "Select (V)"_L1, nullptr},
        {Tool::Arrow, u'a', "arrow.up.right"_L1, "Arrow (A)"_L1, only<Arrow>()},
        {Tool::Rect, u'r', "rectangle"_L1, "Rectangle (R)"_L1, only<Rect>()},
        {Tool::Ellipse, u'e', "circle"_L1, "Ellipse (E)"_L1, only<Ellipse>()},
        {Tool::Line, u'l', "line.diagonal"_L1, "Line (L)"_L1, only<Line>()},
        {Tool::Pen, u'p', "scribble"_L1, "Pen (P)"_L1, only<Pen>()},
        {Tool::Highlighter, u'h', "highlighter"_L1, "Highlighter (H)"_L1, only<Highlighter>()},
        {Tool::Text, u't', "textformat"_L1, "Text (T)"_L1, only<Text>()},
        {Tool::Step, u'n', "1.circle"_L1, "Numbered step (N)"_L1, only<Step>()},
        {Tool::Sticker, u's', "face.smiling"_L1, "Emoji sticker (S)"_L1, only<Sticker>()},
        {Tool::Blur, u'b', "square.grid.3x3.fill"_L1, "Blur (B)"_L1, only<Blur>()},
        {Tool::Redact, u'x', "eye.slash"_L1, "Redact (X)"_L1, only<Redact>()},
        {Tool::Crop, u'c', "crop"_L1, "Crop (C)"_L1, nullptr},
    }};
    return all;
}

const ToolInfo& infoOf(Tool tool)
{
    return tools()[std::size_t(tool)];
}

std::optional<Tool> toolForKey(QStringView typed)
{
    if (typed.size() != 1)
        return {};
    for (const ToolInfo& info : tools())
        if (typed.front().toLower() == QChar(info.key))
            return info.tool;
    return {};
}
