// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/settings/SampleCapture.h"

#include "widgets/Theme.h"

#include <QPainter>

QImage sampleCapture()
{
    QImage image(440, 240, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient wallpaper(0, 0, image.width(), image.height());
    wallpaper.setColorAt(0, Theme::system(SystemColour::Indigo));
    wallpaper.setColorAt(0.55, Theme::system(SystemColour::Purple));
    wallpaper.setColorAt(1, Theme::system(SystemColour::Orange));
    painter.fillRect(image.rect(), wallpaper);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF window(80, 44, 280, 160);
    painter.setBrush(QColor(0, 0, 0, 50));
    painter.drawRoundedRect(window.translated(0, 8), 14, 14);
    painter.setBrush(QColor(255, 255, 255, 235));
    painter.drawRoundedRect(window, 14, 14);
    int dot = 0;
    for (const auto colour : {SystemColour::Red, SystemColour::Yellow, SystemColour::Green}) {
        painter.setBrush(Theme::system(colour));
        painter.drawEllipse(QPointF(104 + 22 * dot++, 64), 6, 6);
    }
    painter.setBrush(QColor(0, 0, 0, 40));
    for (const double length : {190.0, 220.0, 140.0, 200.0})
        painter.drawRoundedRect(QRectF(104, 92 + 24 * (dot++ - 3), length, 8), 4, 4);
    return image;
}
