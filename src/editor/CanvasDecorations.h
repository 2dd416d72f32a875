// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/CenteringClipView.h"

#include <QColor>

#include <optional>

class CanvasModel;
class QPainter;

/// What is drawn over the picture while it is edited and is as large at every magnification: the
/// selection's outline and handles, the crop rectangle. In pixels of the picture.
struct CanvasDecorations {
    std::optional<QRectF> outline;
    QList<QPointF> handles;
    std::optional<QRectF> crop; ///< What lies outside of it is shaded.

    static CanvasDecorations of(const CanvasModel& model);

    /// @param painter in points of the view.
    void draw(QPainter& painter, const CenteringClipView& view, const QColor& accent) const;

    /// What draw() changes in the view, in points.
    QRegion region(const CenteringClipView& view) const;

    bool operator==(const CanvasDecorations&) const = default;
};
