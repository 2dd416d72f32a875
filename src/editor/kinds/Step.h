// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AnnotationKind.h"

/// A numbered badge about a.
class Step final : public AnnotationKind {
public:
    void draw(QPainter& painter, const Annotation& it, const QImage& base) const override;
    QRectF bounds(const Annotation& it) const override;
    QRectF ink(const Annotation& it) const override;
    Making making() const override { return Making::Press; }
    void begin(Annotation& it, const ToolSettings& settings, int number, double lot) const override;
};
