// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Bitmap.h"

#include <QImage>

/// A bitmap as the toolkit sees it, sharing its pixels; RGB32 or ARGB32_Premultiplied.
QImage toImage(const Bitmap& bitmap);

/// The same pixels, not copied, under a pixel ratio and a resolution of their own: setting these on
/// a shared QImage copies it whole. Other formats than the two of PixelFormat do get copied then.
QImage samePixels(const QImage& image);

/// A picture in one of the two formats of PixelFormat: itself, or converted.
QImage inOurFormat(const QImage& image);

/// All of a picture.
Result<QImage> readImage(RowSource& source);

/// A toolkit image read as rows; formats other than the two of PixelFormat are converted at once.
class ImageRows final : public RowSource {
public:
    explicit ImageRows(const QImage& image);

    QSize size() const override { return m_image.size(); }
    PixelFormat format() const override;
    Result<Rows> rows(int y, int most) override;

private:
    QImage m_image;
};
