// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/gallery/Gallery.h"
#include "base/Language.h"

#include <QApplication>
#include <QDir>

#include <gtest/gtest.h>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

/// Set to write the pictures anew, which then are to be looked at.
constexpr char renewal[] = "PIXMALLOW_NEW_GOLDEN_IMAGES";

/// Looked at with two pixels per point as well: those with the finest drawing.
const QStringList denseScenes {u"editor"_s, u"stickers"_s, u"preview"_s, u"panel"_s,
    u"settings-general"_s, u"settings-shortcuts"_s, u"history"_s, u"pop-up"_s};

/// Looked at with letters of twice the size as well.
const QStringList largeScenes {u"editor"_s, u"stickers"_s, u"preview"_s, u"panel"_s, u"update"_s,
    u"settings-general"_s, u"settings-shortcuts"_s, u"settings-fun"_s, u"history-search"_s,
    u"history-empty"_s, u"achievements"_s, u"pop-up"_s, u"toast-failed"_s, u"countdown"_s,
    u"welcome"_s, u"reopen"_s};

/// Looked at in German and mirrored as well: what every user sees, and what is placed by hand.
const QStringList foreignScenes {
    u"editor"_s, u"preview"_s, u"panel"_s, u"settings-general"_s, u"history"_s, u"achievements"_s};

struct Dress {
    QString skin;
    bool dark;
};

/// What tells the pictures of this run from others: a language, a direction, a scale. Language and
/// direction come from the environment and the command line, as they do for every program.
QString variant()
{
    QString variant;
    if (qEnvironmentVariable("LANGUAGE") == u"de"_s) {
        QLocale::setDefault(GalleryWorld::locale());
        Language::install({u"de"_s});
        variant += u"-de"_s;
    }
    if (QGuiApplication::isRightToLeft())
        variant += u"-mirrored"_s;
    return variant;
}

bool isVisible(QRgb one, QRgb other)
{
    constexpr int visible = 24; // Of 255, in any of the colours.
    return std::abs(qRed(one) - qRed(other)) > visible
        || std::abs(qGreen(one) - qGreen(other)) > visible
        || std::abs(qBlue(one) - qBlue(other)) > visible;
}

/// How many pixels anyone would see to be others, in the square of 32 pixels that has most of them:
/// a word that is missing is nothing to a whole window.
int difference(const QImage& one, const QImage& other)
{
    constexpr int side = 32;
    if (one.size() != other.size())
        return side * side;
    const int columns = one.width() / side + 1;
    QList<int> differing(columns * (one.height() / side + 1));
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            differing[y / side * columns + x / side]
                += isVisible(one.pixel(x, y), other.pixel(x, y));
    return *std::ranges::max_element(differing);
}

/// Compares with the picture of that name, or writes it where that was asked for.
void expectGolden(const QImage& image, const QString& name)
{
    constexpr int tolerance = 64; // Pixels; the mark of a moving border, the hue of a shadow.
    const QDir golden(QStringLiteral(GOLDEN_IMAGES));
    if (qEnvironmentVariableIsSet(renewal)) {
        EXPECT_TRUE(image.save(golden.filePath(name)));
        return;
    }
    const int changed = difference(image, QImage(golden.filePath(name)));
    EXPECT_LE(changed, tolerance) << name.toStdString();
    if (changed <= tolerance)
        return;
    const QDir failed(QDir::current().filePath(u"gallery-failed"_s));
    failed.mkpath(u"."_s);
    image.save(failed.filePath(name));
}

QImage opaque(const Scene& scene, GalleryWorld& world)
{
    return rendered(scene, world).convertToFormat(QImage::Format_RGB32);
}

} // namespace

TEST(GalleryTest, looksAsItDidWhenLookedAt)
{
    const bool isDense = qApp->devicePixelRatio() > 1;
    const QString variant = ::variant();
    GalleryWorld world;
    for (const Dress& dress :
        {Dress {u"default"_s, false}, Dress {u"default"_s, true}, Dress {u"kawaii"_s, false}}) {
        if (!variant.isEmpty() && dress.skin != u"default"_s)
            continue;
        world.wear(dress.skin, dress.dark);
        for (const Scene& scene : scenes()) {
            if (isDense && !denseScenes.contains(scene.name))
                continue;
            if (!variant.isEmpty() && (dress.dark || !foreignScenes.contains(scene.name)))
                continue;
            const QString name = u"%1-%2-%3%4.png"_s.arg(scene.name, dress.skin,
                dress.dark ? u"dark"_s : u"light"_s, variant + (isDense ? u"@2x"_s : QString()));
            expectGolden(opaque(scene, world), name);
        }
    }
}

TEST(GalleryTest, hasRoomForLettersOfTwiceTheSize)
{
    constexpr QSize screen(1280, 800); // The smallest that all has to fit on.
    if (qApp->devicePixelRatio() > 1)
        GTEST_SKIP() << "their size in points is the same";
    GalleryWorld world;
    world.wear(u"default"_s, false, 2);
    for (const Scene& scene : scenes()) {
        const QImage image = opaque(scene, world);
        EXPECT_LE(image.width(), screen.width()) << scene.name.toStdString();
        EXPECT_LE(image.height(), screen.height()) << scene.name.toStdString();
        if (largeScenes.contains(scene.name) || qEnvironmentVariableIsSet("PIXMALLOW_ALL_LARGE"))
            expectGolden(image, scene.name + u"-large.png"_s);
    }
}
