// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/Tool.h"

#include <QString>

#include <optional>
#include <span>

class AnnotationKind;

/// How a tool is chosen and shown, and what it makes.
struct ToolInfo {
    Tool tool;
    char16_t key; ///< Lower case.
    QLatin1String symbol; ///< Name of its icon.
    const char* tooltip; ///< In English, for Words::tr().
    const AnnotationKind* kind; ///< Null for tools that make no annotation.
};

std::span<const ToolInfo> tools(); ///< In the order of Tool.
const ToolInfo& infoOf(Tool tool);

/// The tool that a typed letter chooses, in either case.
std::optional<Tool> toolForKey(QStringView typed);
