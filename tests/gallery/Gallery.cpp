// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/gallery/Gallery.h"

#include <QPainter>
#include <QPixmap>

using namespace Qt::StringLiterals;

namespace {

Folders foldersIn(const QString& home)
{
    Folders folders;
    folders.configuration = home + u"/config"_s;
    folders.data = home + u"/data"_s;
    folders.cache = home + u"/cache"_s;
    folders.pictures = home + u"/Pictures"_s;
    folders.downloads = home + u"/Downloads"_s;
    folders.runtime = home + u"/run"_s;
    folders.temporary = home + u"/tmp"_s;
    return folders;
}

void paintWallpaper(QPainter& painter, QSize size)
{
    QLinearGradient gradient(0, 0, size.width(), size.height());
    gradient.setColorAt(0, QColor(0x7fa8c9));
    gradient.setColorAt(0.6, QColor(0x9d8fbf));
    gradient.setColorAt(1, QColor(0xd9a08b));
    painter.fillRect(QRect({}, size), gradient);
}

} // namespace

GalleryWorld::GalleryWorld()
    : folders(foldersIn(home.path()))
    , prefs(folders)
    , fun(folders, prefs)
    , skins(prefs, *platform.appearance)
    , themes(skins, *platform.appearance)
{
    prefs.registerDefaults();
    skins.apply();
}

void GalleryWorld::wear(const QString& skin, bool dark, double textScale)
{
    platform.fakeAppearance().set({.dark = dark, .textScale = textScale});
    skins.use(skin);
    skins.apply();
}

QLocale GalleryWorld::locale()
{
    const QString language = qEnvironmentVariable("LANGUAGE");
    return QLocale(language.isEmpty() ? u"en_GB"_s : language);
}

QImage GalleryWorld::picture(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    paintWallpaper(painter, size);
    painter.setRenderHint(QPainter::Antialiasing);
    const double unit = size.width() / 32.0;
    const auto window = [&](QRectF box, QColor bar) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(box, unit / 3, unit / 3);
        painter.setBrush(bar);
        painter.drawRoundedRect(
            QRectF(box.topLeft(), QSizeF(box.width(), unit * 1.4)), unit / 3, unit / 3);
        painter.setBrush(QColor(0xc8ccd4));
        for (double y = box.top() + 2.5 * unit; y < box.bottom() - unit; y += unit)
            painter.drawRect(QRectF(box.left() + unit, y, box.width() * 0.7, unit / 3));
    };
    window({2 * unit, 2 * unit, 17 * unit, 12 * unit}, QColor(0x3b4252));
    window({13 * unit, 7 * unit, 16 * unit, 11 * unit}, QColor(0x88c0d0));
    return image;
}

QImage rendered(const Scene& scene, GalleryWorld& world)
{
    const auto widget = scene.make(world);
    widget->ensurePolished();
    widget->adjustSize();
    const Theme& theme = world.themes.current();
    const QMargins margins
        = scene.ground == Scene::Ground::Card ? CardFrame::shadowMargins() : QMargins(8, 8, 8, 8);
    const QSize size = widget->size().grownBy(margins);
    const double scale = widget->devicePixelRatioF();
    QImage image(size * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    QPainter painter(&image);
    paintWallpaper(painter, size);
    const QPoint corner(margins.left(), margins.top());
    const QRectF box(corner, widget->size());
    if (scene.ground == Scene::Ground::Card)
        CardFrame::paint(painter, box, theme, CardFrame::Ground::Blended);
    else if (scene.ground == Scene::Ground::Window)
        painter.fillRect(box, theme.window);
    widget->render(&painter, corner, {}, QWidget::DrawChildren);
    return image;
}
