// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "preview/PinPicture.h"
#include "widgets/Theme.h"

#include <QWidget>

/// The picture of a pin. Tells of drags, of its middle and of its edges, and of double clicks.
class PinImageView final : public QWidget {
    Q_OBJECT

public:
    PinImageView(const Themes& themes, const QImage& image, QWidget* parent);

    /// In points; the widget is as large as the whole points around.
    void setExtent(QSizeF extent);

Q_SIGNALS:
    void grabbed();
    /// Since it was grabbed, in points of the desktop. No edges: the whole is moved.
    void dragged(QPointF by, Qt::Edges edges);
    void dropped();
    void doubleClicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    const Themes& m_themes;
    PinPicture m_picture;
    QSizeF m_extent;
    std::optional<QPointF> m_grip; ///< On the desktop, while the button is held.
    Qt::Edges m_edges;
};
