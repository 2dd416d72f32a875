// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/EditorLayout.h"
#include "editor/FaceCovers.h"
#include "editor/Memes.h"
#include "editor/Stickers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

using namespace Qt::StringLiterals;

TEST(EditorLayoutTest, windowsHoldThePictureWithinTheScreen)
{
    const QSize screen(1440, 900);
    EXPECT_EQ(EditorLayout::contentSize({16, 16}, 1, screen), QSize(760, 520));
    EXPECT_EQ(EditorLayout::contentSize({2000, 1000}, 2, screen), QSize(1080, 640));
    EXPECT_EQ(EditorLayout::contentSize({5120, 2880}, 1, screen), QSize(1296, 810));
}

TEST(EditorLayoutTest, fittedPicturesShowWholeAndNeverLargerThanTheyAre)
{
    const QSize view(840, 540); // 800 × 500 without margins.
    const auto fitting = [&](QSize picture, double scale) {
        return EditorLayout::fittingMagnification(picture, view, scale);
    };
    EXPECT_DOUBLE_EQ(fitting({1600, 500}, 1), 0.5);
    EXPECT_DOUBLE_EQ(fitting({800, 5000}, 1), 0.1);
    EXPECT_DOUBLE_EQ(fitting({100, 100}, 1), 1);
    EXPECT_DOUBLE_EQ(fitting({100, 100}, 2), 0.5);
    EXPECT_DOUBLE_EQ(fitting({100, 100}, 0.5), 1);
    EXPECT_DOUBLE_EQ(fitting({100, 100000}, 1), 0.05);
    EXPECT_DOUBLE_EQ(EditorLayout::fittingMagnification({100, 100}, {10, 10}, 1), 0.05);
}

TEST(MemesTest, captionsLieWithinThePictureAtItsEdges)
{
    const QString longText = u"when the build is green but nobody knows why it was red before"_s;
    for (const QSize picture : {QSize(400, 300), QSize(1920, 1080), QSize(600, 2000)})
        for (const QString& text :
            {u"one"_s, longText, u"Unbreakableverylongwordwithoutblanks"_s}) {
            const auto lines = Memes::captions(text, text, picture);
            ASSERT_EQ(lines.size(), 2U);
            const QRectF whole({}, QSizeF(picture));
            for (const Annotation& line : lines) {
                EXPECT_TRUE(whole.contains(line.bounds())) << text.toStdString();
                EXPECT_NEAR(line.bounds().center().x(), whole.center().x(), 1);
                EXPECT_EQ(line.style, u"Meme"_s);
            }
            EXPECT_LT(lines[0].bounds().top(), picture.height() / 10.);
            EXPECT_GT(lines[1].bounds().bottom(), picture.height() * 0.9);
        }
    EXPECT_GT(Memes::captions(u"a"_s, {}, {1920, 1080})[0].fontSize,
        2 * Memes::captions(u"a"_s, {}, {800, 600})[0].fontSize);
    EXPECT_EQ(Memes::captions(u"  "_s, u"b"_s, {400, 300}).size(), 1U);
    EXPECT_TRUE(Memes::captions({}, {}, {400, 300}).empty());
}

TEST(FaceCoversTest, lieOnTheFacesALittleLargerAndTurned)
{
    std::mt19937 random(3);
    const QList<QRectF> faces {{100, 50, 80, 100}, {0, 0, 20, 20}};
    const auto covers = FaceCovers::on(faces, u"🐸"_s, random);
    ASSERT_EQ(covers.size(), 2U);
    for (std::size_t index = 0; index < covers.size(); ++index) {
        const QRectF box(covers[index].a, covers[index].b), face = faces[qsizetype(index)];
        EXPECT_EQ(box.center(), face.center());
        EXPECT_DOUBLE_EQ(box.width(), face.width() * 1.45);
        EXPECT_DOUBLE_EQ(box.height(), box.width());
        EXPECT_LE(std::abs(covers[index].rotation), 10);
        EXPECT_EQ(covers[index].emoji, u"🐸"_s);
    }
    std::set<QString> chosen;
    for (const Annotation& cover : FaceCovers::on(QList<QRectF>(40, faces[0]), {}, random)) {
        EXPECT_TRUE(Stickers::faceCovers().contains(cover.emoji));
        chosen.insert(cover.emoji);
    }
    EXPECT_GT(chosen.size(), 3U);
    EXPECT_EQ(FaceCovers::told(1), u"Covered 1 face — select one to move or swap it"_s);
    EXPECT_EQ(FaceCovers::told(2), u"Covered 2 faces — select one to move or swap it"_s);
}
