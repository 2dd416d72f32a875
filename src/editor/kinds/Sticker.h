// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/kinds/Box.h"

/// An emoji or short text that fills the rectangle, rotated.
class Sticker final : public Box {
public:
    void draw(QPainter& painter, const Annotation& it, const QImage& base) const override;
    QRectF ink(const Annotation& it) const override;
    void begin(Annotation& it, const ToolSettings& settings, int number, double lot) const override;
    bool finish(Annotation& it) const override;
};
