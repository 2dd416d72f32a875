// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "capture/Shot.h"
#include "preview/EffectBorder.h"
#include "widgets/FrameClock.h"
#include "widgets/Theme.h"

#include <QPixmap>
#include <QWidget>

#include <memory>

/// The picture on a preview card, with its animated border. A click and the begin of a drag are
/// told; nothing else happens here.
class PreviewThumbnail final : public QWidget {
    Q_OBJECT

public:
    static constexpr QSize most {310, 190}; ///< Points.

    PreviewThumbnail(const Themes& themes, const Shot& shot);

    /// None for no effect; then nothing ticks.
    void setBorder(std::unique_ptr<EffectBorder> border);

    /// How large a picture is shown, in points: as large as fits. Never thinner than a hairline.
    static QSizeF fitted(QSize pixels);

    QSize sizeHint() const override;
    QRegion borderRegion() const; ///< What a frame of the border paints.
    QPixmap pixmap() const { return m_picture; } ///< As it is shown.

Q_SIGNALS:
    void clicked();
    void dragged(); ///< Begins here.

protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QRectF frame() const; ///< Of the picture.
    void prepare();

    const Themes& m_themes;
    const QImage m_image;
    QPixmap m_picture; ///< Reduced, on its checker, with round corners.
    std::unique_ptr<EffectBorder> m_border;
    FrameClock m_clock;
    std::optional<QPoint> m_pressed;
};
