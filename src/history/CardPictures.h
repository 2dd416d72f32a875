// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "history/HistoryItem.h"
#include "history/Thumbnails.h"

#include <QCache>
#include <QPixmap>

/// Thumbnails as cards show them, fitted and rounded, for about as many cards as are seen while
/// someone scrolls on. Drawing them from here costs next to nothing.
class CardPictures final {
public:
    static constexpr qsizetype mostBytes = 16 * 1024 * 1024;

    /// How large an entry is shown within a box, in points: fitted, and never enlarged.
    static QSizeF fitted(QSizeF points, QSizeF box);

    /// Null where it is not there yet.
    const QPixmap* picture(const QString& id) const { return m_pictures.object(id); }

    /// @param scale device pixels per point.
    const QPixmap& make(const QString& id, const Thumbnail& thumbnail, QSizeF box, double scale);
    void forget(const QString& id) { m_pictures.remove(id); }
    void clear() { m_pictures.clear(); }

private:
    QCache<QString, QPixmap> m_pictures {mostBytes};
};
