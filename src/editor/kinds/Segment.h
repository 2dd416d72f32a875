// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AnnotationKind.h"

/// What arrows and lines have in common: two ends that can be pulled.
class Segment : public AnnotationKind {
public:
    QRectF bounds(const Annotation& it) const override;
    bool hit(const Annotation& it, QPointF point, double tolerance) const override;
    QList<QPointF> handles(const Annotation& it) const override;
    void setHandle(Annotation& it, qsizetype index, QPointF to) const override;

protected:
    QPointF regularEnd(const Annotation& it, QPointF point) const override;
};
