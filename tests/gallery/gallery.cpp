// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/gallery/Gallery.h"
#include "base/Language.h"

#include <QApplication>
#include <QDir>
#include <QPainter>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int gap = 8; // Points between scenes.
constexpr int pageWidth = 1500; // Points.

/// Scenes one beside the other, in rows.
QImage page(GalleryWorld& world)
{
    QList<QImage> pictures;
    for (const Scene& scene : scenes())
        pictures << rendered(scene, world);
    const double scale = pictures.first().devicePixelRatio();
    QList<QPoint> places;
    QPoint next(gap, gap);
    int rowHeight = 0;
    for (const QImage& picture : pictures) {
        const QSize size = picture.deviceIndependentSize().toSize();
        if (next.x() + size.width() > pageWidth) {
            next = {gap, next.y() + rowHeight + gap};
            rowHeight = 0;
        }
        places << next;
        next.rx() += size.width() + gap;
        rowHeight = std::max(rowHeight, size.height());
    }
    QImage sheet(QSize(pageWidth, next.y() + rowHeight + gap) * scale, QImage::Format_RGB32);
    sheet.setDevicePixelRatio(scale);
    sheet.fill(QColor(0x404048));
    QPainter painter(&sheet);
    for (qsizetype i = 0; i < pictures.size(); ++i)
        painter.drawImage(places[i], pictures[i]);
    return sheet;
}

} // namespace

/// gallery FOLDER: one page for each skin, light and dark where the skin leaves that open. The
/// environment sets the scale and the language, the option -reverse mirrors all.
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Language::install();
    const auto arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("usage: gallery FOLDER\n", stderr);
        return 64;
    }
    const QDir folder(arguments[1]);
    folder.mkpath(u"."_s);
    GalleryWorld world;
    for (const Skin& skin : Skins::all())
        for (const bool dark : {false, true}) {
            if (skin.mode && *skin.mode != (dark ? u"dark"_s : u"light"_s))
                continue;
            world.wear(skin.id, dark);
            const QString name = u"%1-%2-%3x.png"_s.arg(skin.id, dark ? u"dark"_s : u"light"_s)
                                     .arg(qRound(application.devicePixelRatio()));
            if (!page(world).save(folder.filePath(name))) {
                std::fprintf(stderr, "gallery: cannot write %s\n",
                    folder.filePath(name).toLocal8Bit().constData());
                return 2;
            }
        }
    return 0;
}
