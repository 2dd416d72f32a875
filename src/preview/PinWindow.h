// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "capture/ShotActions.h"
#include "preview/PinImageView.h"
#include "widgets/FloatingPanel.h"

/// A capture that stays above all windows, as a plain picture: it can be moved, zoomed, resized and
/// faded. It has the keyboard once it is open or clicked, and gives it back when it closes.
class PinWindow final : public QWidget {
    Q_OBJECT

public:
    PinWindow(const Surroundings& surroundings, ShotActions actions, Shot shot);
    ~PinWindow() override;

    /// Shows it in the middle of the screen under the pointer.
    /// @param shift points, so that pins do not hide one another
    void open(QPoint shift = {});

    double zoom() const { return m_zoom; } ///< 0.1 to 6, of the capture's size in points.
    QRectF frame() const { return m_frame; } ///< Of the picture, in points of the desktop, y down.

    void resizeTo(double zoom); ///< The top left corner stays.
    void actualSize() { resizeTo(1); }
    void copyImage();
    void edit(); ///< In the editor instead.
    void closePin();

Q_SIGNALS:
    void closed();

protected:
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place(QRectF frame);
    void drag(QPointF by, Qt::Edges edges);
    void followBlending();
    void takeFocus();

    Surroundings m_surroundings;
    const ShotActions m_actions;
    const Shot m_shot;
    const QSizeF m_size; ///< Of the capture, in points.
    PinImageView m_view;
    QRectF m_frame;
    QRectF m_grabbed; ///< The frame when the drag began.
    double m_zoom = 1;
    bool m_hasFocus = false;
};
