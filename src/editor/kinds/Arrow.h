// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/kinds/Segment.h"

/// Straight from a to b, its head at b.
class Arrow final : public Segment {
public:
    void draw(QPainter& painter, const Annotation& it, const QImage& base) const override;
    QRectF ink(const Annotation& it) const override;
};
