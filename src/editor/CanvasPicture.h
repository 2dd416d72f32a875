// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/CenteringClipView.h"

#include <QImage>

#include <span>
#include <vector>

struct Annotation;
class QPainter;

/// A picture with its annotations as the canvas shows them. At its own size and smaller, they are
/// the very pixels that flattening gives, reduced; larger, lines and letters can be drawn sharp,
/// which takes its time. Draws anew only what has changed.
class CanvasPicture final {
public:
    /// @param base 32 bits a pixel.
    /// @param marks topmost last.
    /// @param damage what differs from what was drawn before; all counts if the base is another.
    void update(
        const QImage& base, std::span<const Annotation* const> marks, const QRegion& damage);

    enum class Detail { Fast, Sharp };

    /// @param painter in points of the view, clipped to what is wanted.
    /// @param marks those of the last update().
    /// @param detail of what is enlarged.
    void draw(QPainter& painter, const CenteringClipView& view,
        std::span<const Annotation* const> marks, Detail detail = Detail::Sharp);

    const QImage& pixels() const { return m_full; } ///< As flattened.

private:
    /// Half as large as the one before, and what of it is out of date.
    struct Half {
        QImage image;
        QRegion stale;
    };

    const QImage& reduced(int halvings);
    void drawReduced(QPainter& painter, double zoom);
    void drawSharp(QPainter& painter, std::span<const Annotation* const> marks) const;

    QImage m_base;
    QImage m_full;
    std::vector<Half> m_halves;
};
