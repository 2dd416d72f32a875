// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <array>
#include <optional>

/// What a capture takes. The order is that of menus and settings.
enum class CaptureKind { Region, Window, Screen, Delayed, Text };

/// How a kind is stored, named and drawn.
struct CaptureKindInfo {
    CaptureKind kind;
    QLatin1String key; ///< Stored form; also the end of its shortcut's preference key.
    QLatin1String title; ///< %1 stands for the delay in seconds.
    QLatin1String symbol; ///< Name of its icon.
};

inline constexpr std::array<CaptureKindInfo, 5> captureKinds {{
    {CaptureKind::Region, QLatin1String("region"), QLatin1String("Capture region"),
        QLatin1String("rectangle.dashed")},
    {CaptureKind::Window, QLatin1String("window"), QLatin1String("Capture window"),
        QLatin1String("macwindow")},
    {CaptureKind::Screen, QLatin1String("screen"), QLatin1String("Capture screen"),
        QLatin1String("display")},
    {CaptureKind::Delayed, QLatin1String("delayed"), QLatin1String("Delayed capture (%1 s)"),
        QLatin1String("timer")},
    {CaptureKind::Text, QLatin1String("text"), QLatin1String("Copy text"),
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
