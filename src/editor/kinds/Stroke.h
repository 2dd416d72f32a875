// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/AnnotationKind.h"

class QPen;

/// What is drawn freehand along points.
class Stroke : public AnnotationKind {
public:
    void draw(QPainter& painter, const Annotation& it, const QImage& base) const override;
    QRectF bounds(const Annotation& it) const override;
    QRectF ink(const Annotation& it) const override;
    bool hit(const Annotation& it, QPointF point, double tolerance) const override;

    void begin(Annotation& it, const ToolSettings& settings, int number, double lot) const override;
    QRectF dragTo(Annotation& it, QPointF point, bool regular) const override;
    bool finish(Annotation& it) const override;

protected:
    virtual QPen pen(const Annotation& it) const = 0;
    virtual double margin(const Annotation& it) const = 0; ///< Of the bounds around the points.

private:
    double reach(const Annotation& it) const; ///< How far ink can be from the points.
};
