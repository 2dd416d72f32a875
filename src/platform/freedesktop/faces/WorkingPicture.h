// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRectF>

/// A picture as faces are looked for in it: grey, and of a size at which those that matter have the
/// 80 pixels that the detector knows, while the largest screens do not take long.
class WorkingPicture final {
public:
    explicit WorkingPicture(const QImage& picture);

    const QImage& grey() const { return m_grey; } ///< Grayscale8; null if it is too narrow.

    /// A face of which the detector found what lies between eyebrows and mouth in the grey picture:
    /// from forehead to chin, in pixels of the picture and within it.
    QRectF face(const QRectF& found) const;

private:
    QSize m_size;
    QImage m_grey;
};
