// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/Tool.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QPointF>
#include <QString>

#include <optional>

class QPainter;

/// One mark on a picture. All lengths and positions are pixels of that picture, y down; which of
/// the fields count depends on the kind. What a kind looks like and how it is touched is told by
/// its AnnotationKind; select and crop have none, so they draw nothing and are never hit.
struct Annotation {
    Annotation(Tool ofKind, const QColor& inColor, double ofWidth)
        : kind(ofKind)
        , color(inColor)
        , width(ofWidth)
    {
    }

    Tool kind;
    QColor color;
    double width; ///< Of strokes; that of a blur sets how coarse it is.
    QPointF a; ///< Start, first corner, or anchor of a text or step.
    QPointF b; ///< End or opposite corner.
    QList<QPointF> points; ///< What a pen or highlighter went along.
    QString text;
    double fontSize = 28; ///< Of a text, or of a step, whose badge grows with it.
    int number = 1; ///< In a step's badge.
    QString emoji = QStringLiteral("😭"); ///< Or a short text; what a sticker shows.
    double rotation = 0; ///< Of a sticker about its centre, in degrees, clockwise.
    QString style = QStringLiteral("Classic"); ///< The name of a TextLook.
    bool centered = false; ///< A text lies about a.x instead of beginning there.

    /// What was pixelated last, and what for.
    struct BlurCache {
        QRect area;
        int block;
        QImage image;
    };
    mutable std::optional<BlurCache> blurCache;

    /// Everything but the blurCache.
    Annotation copy() const;

    /// @param painter in pixels of the picture; its clip tells what of the annotation is wanted.
    /// @param base the picture, 32 bits a pixel, which a blur is made of.
    void draw(QPainter& painter, const QImage& base) const;

    QRectF bounds() const; ///< For the outline of a selection and for hits.
    QRectF ink() const; ///< Contains every pixel that draw() changes.
    bool hit(QPointF point, double tolerance) const;
    void move(double dx, double dy);
    QList<QPointF> handles() const; ///< By which it can be pulled; none for some kinds.
    void setHandle(qsizetype index, QPointF to);

    /// Whether all fields but the blurCache are equal.
    friend bool operator==(const Annotation& one, const Annotation& other);
};
