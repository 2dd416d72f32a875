// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QHash>
#include <QList>
#include <QSizeF>
#include <QString>

/// A member of an index entry that this version does not know.
struct OtherMember {
    QString name;
    QByteArray json;

    bool operator==(const OtherMember&) const = default;
};

/// One capture in the history. The order is that of the index.
struct HistoryItem {
    QString id {}; ///< The text of a UUID in upper case.
    double date = 0; ///< Of the capture: seconds since 2001-01-01 00:00:00 UTC.
    QString path {}; ///< Absolute, of the user's saved file or of the store's own copy.
    int width = 0; ///< Pixels.
    int height = 0; ///< Pixels.
    double scale = 1; ///< Pixels per point.
    QString app {}; ///< What it shows, as kept; may be empty.
    bool cached = false; ///< `path` is the store's own copy, which goes when the entry does.
    QList<OtherMember> others {};

    QDateTime time() const; ///< The date in UTC; invalid where no calendar has it.
    QString appName() const; ///< The program it shows, or the screen, as the user calls it.
    QSizeF points() const; ///< Its size on the screen; pixels where the scale makes no sense.

    bool operator==(const HistoryItem&) const = default;
};

Q_DECLARE_TYPEINFO(HistoryItem, Q_RELOCATABLE_TYPE);

size_t qHash(const HistoryItem& item, size_t seed = 0);

/// A time as the index has it.
double historyDate(const QDateTime& time);

/// The text of a new UUID in upper case.
QString newHistoryId();

/// Whether it has the form of one, so that it can be part of a file's name.
bool isHistoryId(QStringView id);
