// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/ShotFile.h"

#include "base/Words.h"

#include <QFileInfo>
#include <QImageReader>

#include <cmath>

namespace {

/// Our own files tell 72 dots per inch for each device pixel of a point. Pictures from elsewhere
/// tell what printers or cameras think, which is no scale.
double scaleOf(const QImage& image)
{
    constexpr double inchesPerMetre = 0.0254;
    constexpr double largest = 4;
    const double scale = image.dotsPerMeterX() * inchesPerMetre / 72;
    const double nearest = std::round(scale * 4) / 4;
    const bool ours = std::abs(scale - nearest) < 0.01 && nearest >= 1 && nearest <= largest;
    return ours ? nearest : 1;
}

/// Else the toolkit would only say that it cannot read the file.
bool isTooLarge(QSize size)
{
    constexpr qint64 bytesPerPixel = 4, mebibyte = 1 << 20;
    const qint64 most = QImageReader::allocationLimit() * mebibyte;
    return most > 0 && qint64(size.width()) * size.height() * bytesPerPixel > most;
}

} // namespace

Result<Shot> readShot(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return Error::failed(Words::tr("There is no file “%1”.").arg(path));
    if (!file.isFile())
        return Error::failed(Words::tr("“%1” is not a file.").arg(path));
    if (!file.isReadable())
        return Error::failed(Words::tr("“%1” may not be read.").arg(path));
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (isTooLarge(size))
        return Error::failed(Words::tr("“%1” is too large to be opened: it has %2 × %3 pixels.")
                                 .arg(path)
                                 .arg(size.width())
                                 .arg(size.height()));
    const QImage image = reader.read();
    if (image.isNull())
        return Error::failed(
            Words::tr("“%1” is no picture that can be read: %2.").arg(path, reader.errorString()));
    return Shot {image, scaleOf(image), file.fileName(), std::nullopt};
}
