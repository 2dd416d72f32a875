// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Words.h"

#include <QString>

#include <array>
#include <optional>

/// What a capture takes. The order is that of menus and settings.
enum class CaptureKind { Region, Window, Screen, Delayed, Text };

/// How a kind is stored, named and drawn.
struct CaptureKindInfo {
    CaptureKind kind;
    QLatin1String key; ///< Stored form; also the end of its shortcut's preference key.
    const char* title; ///< In English, for Words::tr(). %1 stands for the delay in seconds.
    QLatin1String symbol; ///< Name of its icon.
};

inline constexpr std::array<CaptureKindInfo, 5> captureKinds {{
    {CaptureKind::Region, QLatin1String("region"), QT_TRANSLATE_NOOP("Words", "Capture region"),
        QLatin1String("rectangle.dashed")},
    {CaptureKind::Window, QLatin1String("window"), QT_TRANSLATE_NOOP("Words", "Capture window"),
        QLatin1String("macwindow")},
    {CaptureKind::Screen, QLatin1String("screen"), QT_TRANSLATE_NOOP("Words", "Capture screen"),
        QLatin1String("display")},
    {CaptureKind::Delayed, QLatin1String("delayed"),
        QT_TRANSLATE_NOOP("Words", "Delayed capture (%1 s)"), QLatin1String("timer")},
    {CaptureKind::Text, QLatin1String("text"), QT_TRANSLATE_NOOP("Words", "Copy text"),
        QLatin1String("text.viewfinder")},
}};

constexpr const CaptureKindInfo& infoOf(CaptureKind kind)
{
    return captureKinds[std::size_t(kind)];
}

/// The kind stored under a key such as "region".
constexpr std::optional<CaptureKind> captureKind(QStringView key)
{
    for (const auto& info : captureKinds)
        if (key == info.key)
            return info.kind;
    return std::nullopt;
}
