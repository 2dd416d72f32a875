// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QTextEdit>

struct Annotation;
class CenteringClipView;

/// Where a text annotation is typed, in its place on the canvas: a field of several lines, with all
/// that the desktop's text fields can do. Return ends it, with Shift it begins another line.
class TextField final : public QTextEdit {
    Q_OBJECT

public:
    TextField(QWidget* canvas, const Annotation& annotation);

    void place(const CenteringClipView& view); ///< Where the annotation is shown, as large.

Q_SIGNALS:
    void done();
    void cancelled();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void fit();

    QPointF m_anchor; ///< Of the annotation, in pixels of the picture.
    bool m_centered;
    double m_fontSize; ///< Likewise.
    QPoint m_origin; ///< Where the anchor is in the canvas.
};
