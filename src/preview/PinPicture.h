// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QBrush>
#include <QImage>

#include <utility>

/// A picture at whatever size it is asked for: exact at its own, averaged when reduced, smooth when
/// a little enlarged, and with pixels to be counted when enlarged more. Keeps the last size.
class PinPicture final {
public:
    explicit PinPicture(QImage image)
        : m_image(std::move(image))
    {
    }

    const QImage& original() const { return m_image; }

    /// Fills a rectangle of this size, in device pixels, from its top left corner on.
    QBrush brush(QSize pixels);

private:
    bool isKept(QSize pixels) const;

    QImage m_image;
    QImage m_half; ///< Of half the width and height; made when first needed.
    QImage m_scaled;
};
