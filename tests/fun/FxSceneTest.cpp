// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/FxScene.h"
#include "fun/Confetti.h"
#include "fun/FxPainter.h"
#include "fun/FxTiles.h"

#include <QPainter>

#include <gmock/gmock.h>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize screen(320, 200);

FxStage stageOf(QRectF area)
{
    FxStage stage;
    stage.area = area;
    stage.screen = screen;
    stage.picture = QImage(area.size().toSize() * 2, QImage::Format_RGB32);
    stage.picture.fill(QColor(0x20, 0x80, 0x40));
    stage.landing = {300, 10};
    stage.theme = Theme::of(Skins::find({}), false, {});
    return stage;
}

std::unique_ptr<FxScene> sceneOf(const QString& kind, quint32 seed = 1)
{
    FxStage stage = stageOf({100, 60, 120, 90});
    stage.seed = seed;
    return FxScene::make(FxRules::planOf(kind), stage);
}

QImage pictureOf(const FxScene& scene, double seconds, double scale = 1)
{
    QImage image(screen * scale, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    FxPainter painter(stageOf({0, 0, 120, 90}).picture);
    QPainter onImage(&image);
    painter.paint(onImage, scene.at(seconds));
    return image;
}

/// Of all pixels, 0 to 255.
double meanAlpha(const QImage& image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += qAlpha(image.pixel(x, y));
    return sum / (image.width() * image.height());
}

const QString moving[] {u"confetti"_s, u"sparkles"_s, u"pixels"_s, u"fly"_s};

} // namespace

TEST(FxSceneTest, theFlashFallsOffWithTheSquareOfWhatIsLeft)
{
    const auto flash = sceneOf(u"flash"_s);
    for (const auto& [share, opacity] : {std::pair(0.0, 0.55), {0.25, 0.309}, {0.5, 0.1375},
             {0.75, 0.0344}, {1.0, 0.0}, {3.0, 0.0}}) {
        const QImage picture = pictureOf(*flash, 0.3 * share);
        EXPECT_NEAR(qAlpha(picture.pixel(160, 100)), 255 * opacity, 1) << share;
        EXPECT_EQ(qAlpha(picture.pixel(99, 100)), 0);
        EXPECT_EQ(qAlpha(picture.pixel(100, 60)), qAlpha(picture.pixel(219, 149)));
        EXPECT_EQ(qAlpha(picture.pixel(160, 150)), 0);
    }
}

TEST(FxSceneTest, followsFromTimeAndSeedAlone)
{
    for (const QString& kind : moving) {
        const auto scene = sceneOf(kind), again = sceneOf(kind);
        const QImage late = pictureOf(*scene, 0.5);
        pictureOf(*scene, 0.1); // Backwards, too.
        EXPECT_EQ(late, pictureOf(*again, 0.5)) << kind.toStdString();
        EXPECT_NE(late, pictureOf(*scene, 0.52)) << kind.toStdString();
    }
    EXPECT_NE(
        pictureOf(*sceneOf(u"confetti"_s, 1), 0.5), pictureOf(*sceneOf(u"confetti"_s, 2), 0.5));
}

TEST(FxSceneTest, showsSomethingAllAlongAndNothingAfterwards)
{
    for (const QString& kind : moving) {
        const double duration = FxRules::planOf(kind).duration;
        const auto scene = sceneOf(kind);
        for (const double share : {0.15, 0.5, 0.8})
            EXPECT_GT(meanAlpha(pictureOf(*scene, share * duration)), 0.02)
                << kind.toStdString() << share;
        EXPECT_EQ(meanAlpha(pictureOf(*scene, duration)), 0) << kind.toStdString();
        EXPECT_LT(meanAlpha(pictureOf(*scene, duration - 0.02)), 1.5) << kind.toStdString();
    }
}

TEST(FxSceneTest, drawsNothingOutsideOfWhatItsSpritesSay)
{
    for (const QString& kind : moving) {
        const auto scene = sceneOf(kind);
        for (double seconds = 0; seconds < 1.6; seconds += 0.09) {
            FxTiles tiles(screen, 16);
            for (const auto& sprite : scene->at(seconds))
                tiles.add(sprite.box());
            const QRegion told = tiles.region();
            EXPECT_TRUE(
                (told - scene->bounds().toAlignedRect().adjusted(-16, -16, 16, 16)).isEmpty())
                << kind.toStdString() << seconds;
            QImage picture = pictureOf(*scene, seconds, 2);
            picture.setDevicePixelRatio(1);
            QPainter painter(&picture);
            painter.setCompositionMode(QPainter::CompositionMode_Clear);
            for (const QRect& rect : told)
                painter.fillRect(QRect(rect.topLeft() * 2, rect.size() * 2), Qt::black);
            painter.end();
            EXPECT_EQ(meanAlpha(picture), 0) << kind.toStdString() << seconds;
        }
    }
}

TEST(FxSceneTest, fliesFromWhereItWasTakenToTheLanding)
{
    const auto fly = sceneOf(u"fly"_s);
    const auto pictureIn = [&](double seconds) {
        const auto sprites = fly->at(seconds);
        const auto found = std::ranges::find(sprites, FxSprite::Shape::Picture, &FxSprite::shape);
        EXPECT_NE(found, sprites.end()) << seconds;
        return found == sprites.end() ? FxSprite() : *found;
    };
    EXPECT_EQ(pictureIn(0).centre, QPointF(160, 105));
    EXPECT_EQ(pictureIn(0).size, QSizeF(120, 90));
    double width = 121, left = 400;
    for (double seconds = 0; seconds < 0.66; seconds += 0.04) {
        const auto sprite = pictureIn(seconds);
        EXPECT_LT(sprite.size.width(), width);
        const double distance = std::hypot(300 - sprite.centre.x(), 10 - sprite.centre.y());
        EXPECT_LE(distance, left);
        EXPECT_NEAR(sprite.size.width() / sprite.size.height(), 120 / 90.0, 1e-9);
        width = sprite.size.width();
        left = distance;
    }
    EXPECT_LT(left, 8);
}

TEST(FxSceneTest, crumblesIntoTheColoursOfThePicture)
{
    const auto crumbling = sceneOf(u"pixels"_s);
    int coloured = 0;
    for (const auto& sprite : crumbling->at(0.6)) {
        const QRgb colour = sprite.colour & 0xffffff;
        EXPECT_TRUE(colour == 0x208040 || colour == 0) << std::hex << colour;
        coloured += colour != 0;
    }
    EXPECT_GT(coloured, 30);
    const auto unseen = crumbling->at(0);
    EXPECT_LT(unseen.size(), 40u) << "what has not crumbled is on the screen anyway";
}

TEST(FxSceneTest, confettiRainsFromAboveOneAfterTheOther)
{
    Confetti::Options options;
    options.stage = {0, 0, 300, 200};
    options.pieces = 40;
    options.duration = 2;
    options.mode = Confetti::Mode::Rain;
    const Confetti rain(options, stageOf({0, 0, 1, 1}).theme);
    const auto early = rain.at(0.1), later = rain.at(0.9);
    EXPECT_LT(early.size(), 15u);
    EXPECT_GT(later.size(), 30u);
    for (const auto& sprite : early)
        EXPECT_LT(sprite.centre.y(), 40);
    EXPECT_TRUE(rain.at(2).empty());
}
