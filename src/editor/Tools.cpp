// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Tools.h"

#include "base/Words.h"
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
        {Tool::Select, u'v', "cursorarrow"_L1, QT_TRANSLATE_NOOP("Words", "Select (V)"), nullptr},
        {Tool::Arrow, u'a', "arrow.up.right"_L1, QT_TRANSLATE_NOOP("Words", "Arrow (A)"),
            only<Arrow>()},
        {Tool::Rect, u'r', "rectangle"_L1, QT_TRANSLATE_NOOP("Words", "Rectangle (R)"),
            only<Rect>()},
        {Tool::Ellipse, u'e', "circle"_L1, QT_TRANSLATE_NOOP("Words", "Ellipse (E)"),
            only<Ellipse>()},
        {Tool::Line, u'l', "line.diagonal"_L1, QT_TRANSLATE_NOOP("Words", "Line (L)"),
            only<Line>()},
        {Tool::Pen, u'p', "scribble"_L1, QT_TRANSLATE_NOOP("Words", "Pen (P)"), only<Pen>()},
        {Tool::Highlighter, u'h', "highlighter"_L1, QT_TRANSLATE_NOOP("Words", "Highlighter (H)"),
            only<Highlighter>()},
        {Tool::Text, u't', "textformat"_L1, QT_TRANSLATE_NOOP("Words", "Text (T)"), only<Text>()},
        {Tool::Step, u'n', "1.circle"_L1, QT_TRANSLATE_NOOP("Words", "Numbered step (N)"),
            only<Step>()},
        {Tool::Sticker, u's', "face.smiling"_L1, QT_TRANSLATE_NOOP("Words", "Emoji sticker (S)"),
            only<Sticker>()},
        {Tool::Blur, u'b', "square.grid.3x3.fill"_L1, QT_TRANSLATE_NOOP("Words", "Blur (B)"),
            only<Blur>()},
        {Tool::Redact, u'x', "eye.slash"_L1, QT_TRANSLATE_NOOP("Words", "Redact (X)"),
            only<Redact>()},
        {Tool::Crop, u'c', "crop"_L1, QT_TRANSLATE_NOOP("Words", "Crop (C)"), nullptr},
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
