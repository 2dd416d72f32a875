// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QMap>
#include <QStringList>

#include <optional>

/// All that the playful layer remembers. Every number lies from 0 to FunStats::most.
struct FunStats {
    /// Up to here a number in a JSON file is the same to every program that reads it.
    static constexpr qint64 most = qint64(1) << 53;

    qint64 total = 0; ///< Captures ever taken.
    qint64 night = 0; ///< Captures from 00:00 to 04:59, local time.
    qint64 early = 0; ///< Captures from 05:00 to 07:59, local time.
    qint64 texts = 0; ///< Recognised texts copied to the clipboard.
    qint64 recordings = 0; ///< Reserved: stored and reset, never increased.
    qint64 edits = 0; ///< Editor windows closed.
    qint64 memes = 0; ///< Meme captions added.
    qint64 facesCovered = 0;
    qint64 stickers = 0; ///< Dropped on a canvas.
    qint64 shares = 0;
    qint64 xp = 0; ///< The pet's experience points.
    qint64 bestStreak = 0; ///< Most consecutive days with captures.
    QMap<QString, qint64> days {}; ///< Captures per local calendar day, "2026-03-07".
    QStringList unlocked {}; ///< Ids of achievements, as they came.
    QString petName = QStringLiteral("Pixie");
    std::optional<QDateTime> lastCapture {}; ///< In UTC, to the millisecond.

    bool operator==(const FunStats&) const = default;

    /// One object with a member for each of the above under its name. The date is in seconds since
    /// 2001 began in UTC; it alone may be missing.
    QByteArray toJson() const;

    /// Nothing where a member is missing, of another type, or a number out of range.
    static std::optional<FunStats> fromJson(const QByteArray& text);
};
