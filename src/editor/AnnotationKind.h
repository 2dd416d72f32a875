// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/Annotation.h"

/// What new annotations are made with.
struct ToolSettings {
    QColor color;
    double strokeWidth = 4; ///< Pixels of the picture, as the font size.
    double fontSize = 28;
    QString stickerEmoji = QStringLiteral("😭");
    QString textStyle = QStringLiteral("Classic");
};

/// One kind of annotation: its drawing, bounds, hit test, handles, and how the mouse makes one.
/// Has no state; tools() holds the only one of each kind. What is said about Annotation's
/// functions holds for those of the same name here. The defaults are those of most kinds.
class AnnotationKind {
public:
    /// What makes an annotation of this kind.
    enum class Making {
        Drag,
        Press,
        Typing, ///< A press tells where, then a text is asked for.
    };

    AnnotationKind() = default;
    AnnotationKind(const AnnotationKind&) = delete;
    AnnotationKind& operator=(const AnnotationKind&) = delete;
    virtual ~AnnotationKind() = default;

    virtual void draw(QPainter& painter, const Annotation& it, const QImage& base) const = 0;
    virtual QRectF bounds(const Annotation& it) const;
    virtual QRectF ink(const Annotation& it) const { return bounds(it); }
    virtual bool hit(const Annotation& it, QPointF point, double tolerance) const;
    virtual QList<QPointF> handles(const Annotation& it) const;
    virtual void setHandle(Annotation& it, qsizetype index, QPointF to) const;

    virtual Making making() const { return Making::Drag; }

    /// @param it new, with both corners where the mouse was pressed.
    /// @param number how many of this kind there will be with this one.
    /// @param lot between 0 and 1, drawn for this one.
    virtual void begin(Annotation& it, const ToolSettings& settings, int number, double lot) const;

    /// The mouse has come to a point. Returns what this changes in the picture.
    /// @param regular Shift is held.
    virtual QRectF dragTo(Annotation& it, QPointF point, bool regular) const;

    /// The mouse was released. Returns false if nothing has been made.
    virtual bool finish(Annotation& it) const;

protected:
    /// The end to which a drag from it.a to a point leads while Shift is held.
    virtual QPointF regularEnd(const Annotation& it, QPointF point) const;
};
