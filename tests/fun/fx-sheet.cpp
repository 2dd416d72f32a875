// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/FxPainter.h"
#include "fun/FxScene.h"
#include "skins/Skins.h"

#include <QGuiApplication>
#include <QPainter>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int columns = 4;
constexpr int frames = 12;

/// Something that looks like a window on a desktop.
QImage desktopOf(QSize size, QRect window)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, size.width(), size.height());
    sky.setColorAt(0, QColor(0x35, 0x4a, 0x7d));
    sky.setColorAt(1, QColor(0x8d, 0x6a, 0x9f));
    painter.fillRect(image.rect(), sky);
    painter.fillRect(window, Qt::white);
    painter.fillRect(QRect(window.topLeft(), QSize(window.width(), 26)), QColor(0xe2, 0xe4, 0xea));
    painter.fillRect(QRect(window.topLeft() + QPoint(0, 26), QSize(110, window.height() - 26)),
        QColor(0x2b, 0x38, 0x5e));
    for (int y = window.top() + 50; y < window.bottom() - 60; y += 14)
        painter.fillRect(window.left() + 130, y, 120 + (y * 37) % 180, 6, QColor(0x9a, 0xa1, 0xb0));
    painter.fillRect(window.right() - 140, window.bottom() - 90, 120, 70, QColor(0xf2, 0x8b, 0x50));
    return image;
}

} // namespace

// usage: fx-sheet KIND WIDTHxHEIGHT SKIN FILE
// Draws moments of an effect over an area of that size, in the middle of a screen of 1280 × 800.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const auto words = QGuiApplication::arguments();
    if (words.size() != 5) {
        std::fprintf(stderr, "usage: fx-sheet KIND WIDTHxHEIGHT SKIN FILE\n");
        return 2;
    }
    const auto sides = words[2].split(u'x');
    const QSize screen(1280, 800);
    QRect area({}, QSize(sides.value(0).toInt(), sides.value(1).toInt()));
    area.moveCenter(QRect({}, screen).center());
    const QImage desktop = desktopOf(screen, QRect(320, 170, 640, 440));

    FxStage stage;
    stage.area = area;
    stage.screen = screen;
    stage.picture = desktop.copy(area);
    stage.landing = {1216, 14};
    stage.theme = Theme::of(Skins::find(words[3]), false, {});
    const auto plan = FxRules::planOf(words[1]);
    const auto scene = FxScene::make(plan, stage);
    FxPainter painter(stage.picture);

    QImage sheet(columns * 640, frames / columns * 400, QImage::Format_RGB32);
    QPainter onSheet(&sheet);
    for (int frame = 0; frame < frames; ++frame) {
        QImage layer(screen, QImage::Format_ARGB32_Premultiplied);
        layer.fill(Qt::transparent);
        QPainter onLayer(&layer);
        painter.paint(onLayer, scene->at(plan.duration * (frame + 0.3) / frames));
        onLayer.end();
        QImage picture = desktop;
        QPainter(&picture).drawImage(0, 0, layer);
        onSheet.drawImage(frame % columns * 640, frame / columns * 400,
            picture.scaled(640, 400, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    }
    onSheet.end();
    return sheet.save(words[4]) ? 0 : 2;
}
