// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Annotation.h"
#include "editor/AnnotationKind.h"
#include "editor/Colors.h"
#include "editor/EmojiArt.h"
#include "editor/LaidText.h"
#include "editor/Stickers.h"
#include "editor/TextStyles.h"
#include "editor/Tools.h"

#include <gmock/gmock.h>

#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

Annotation made(Tool kind, QPointF a, QPointF b, double width = 4)
{
    Annotation it(kind, Colors::red, width);
    it.a = a;
    it.b = b;
    return it;
}

Annotation stroke(Tool kind, const QList<QPointF>& points, double width = 4)
{
    Annotation it(kind, Colors::red, width);
    it.points = points;
    return it;
}

Annotation caption(const QString& text, const QString& style)
{
    Annotation it(Tool::Text, Colors::red, 4);
    it.a = {100, 50};
    it.text = text;
    it.style = style;
    return it;
}

QImage drawn(const Annotation& it, QSize size = {200, 200})
{
    QImage base(size, QImage::Format_RGB32);
    base.fill(Qt::white);
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    it.draw(painter, base);
    return image;
}

bool isBlank(const QImage& image)
{
    QImage blank(image.size(), image.format());
    blank.fill(Qt::transparent);
    return image == blank;
}

} // namespace

TEST(ToolsTest, haveARowEachInOrderAndAKeyOfTheirOwn)
{
    ASSERT_EQ(tools().size(), allTools.size());
    for (std::size_t at = 0; at < allTools.size(); ++at) {
        const ToolInfo& info = tools()[at];
        EXPECT_EQ(info.tool, allTools[at]);
        EXPECT_EQ(int(info.tool), int(at));
        EXPECT_EQ(toolForKey(QString(QChar(info.key))), info.tool);
        EXPECT_EQ(toolForKey(QString(QChar(info.key).toUpper())), info.tool);
        const bool makes = info.tool != Tool::Select && info.tool != Tool::Crop;
        EXPECT_EQ(info.kind != nullptr, makes);
    }
    EXPECT_EQ(toolForKey(u"q"), std::nullopt);
    EXPECT_EQ(toolForKey(u"ab"), std::nullopt);
    EXPECT_EQ(toolForKey(u""), std::nullopt);
}

TEST(AnnotationTest, hasBoundsByItsKind)
{
    const QPointF a(60, 80), b(20, 30); // The corners the other way round.
    const QRectF spanned(20, 30, 40, 50);
    const auto grown = [&](double by) { return spanned.adjusted(-by, -by, by, by); };
    for (const Tool kind : {Tool::Rect, Tool::Ellipse, Tool::Sticker, Tool::Blur, Tool::Redact})
        EXPECT_EQ(made(kind, a, b, 6).bounds(), grown(5)) << int(kind);
    for (const Tool kind : {Tool::Arrow, Tool::Line})
        EXPECT_EQ(made(kind, a, b, 6).bounds(), grown(22)) << int(kind);
    EXPECT_EQ(stroke(Tool::Pen, {a, {40, 40}, b}, 6).bounds(), grown(6));
    EXPECT_EQ(stroke(Tool::Highlighter, {a, {40, 40}, b}, 6).bounds(), grown(24));
    EXPECT_EQ(stroke(Tool::Pen, {}).bounds(), QRectF(0, 0, 0, 0));
    EXPECT_EQ(made(Tool::Step, {50, 50}, {}).bounds(), QRectF(29, 29, 42, 42));

    const QSizeF size = LaidText::of(u"Tea"_s, systemFont(QFont::Bold))->size() * 0.28;
    const QRectF text(QPointF(100, 50), size);
    EXPECT_EQ(caption(u"Tea"_s, u"Classic"_s).bounds(), text.adjusted(-4, -4, 4, 4));
    auto centred = caption(u"Tea"_s, u"Classic"_s);
    centred.centered = true;
    EXPECT_DOUBLE_EQ(centred.bounds().center().x(), 100);
    EXPECT_GT(caption(u"straße"_s, u"Meme"_s).bounds().width(), 0);
    EXPECT_EQ(caption(u"straße"_s, u"Meme"_s).bounds(), caption(u"STRASSE"_s, u"Meme"_s).bounds());
    EXPECT_EQ(caption(u"Tea"_s, u"No such"_s).bounds(), caption(u"Tea"_s, u"Classic"_s).bounds());
}

TEST(AnnotationTest, isHitByItsKind)
{
    struct Case {
        Annotation it;
        QPointF point;
        double tolerance;
        bool hit;
    };
    const auto line = made(Tool::Line, {10, 10}, {110, 10});
    const auto dot = made(Tool::Arrow, {50, 50}, {50, 50});
    const auto pen = stroke(Tool::Pen, {{10, 10}, {50, 10}, {50, 90}});
    const Case cases[] = {
        {line, {60, 20}, 6, true},
        {line, {60, 20.1}, 6, false},
        {line, {0, 10}, 6, true},
        {line, {-0.1, 10}, 6, false}, // Distance to the end, not to the infinite line.
        {dot, {56, 58}, 6, true},
        {dot, {57, 58}, 6, false}, // No length, so nothing to divide by.
        {pen, {64, 60}, 6, true},
        {pen, {64.1, 60}, 6, false},
        {stroke(Tool::Highlighter, {{10, 10}, {50, 10}}), {30, 25}, 6, false}, // Though it is ink.
        {stroke(Tool::Pen, {{10, 10}}), {10, 10}, 6, false},
        {made(Tool::Rect, {20, 20}, {80, 80}), {50, 50}, 0, true}, // Also where it is empty.
        {made(Tool::Rect, {20, 20}, {80, 80}), {90.5, 50}, 6, false},
        {made(Tool::Rect, {20, 20}, {80, 80}), {90.5, 50}, 7, true},
        {made(Tool::Crop, {20, 20}, {80, 80}), {50, 50}, 6, false},
    };
    for (const Case& that : cases)
        EXPECT_EQ(that.it.hit(that.point, that.tolerance), that.hit)
            << int(that.it.kind) << " at " << that.point.x() << ", " << that.point.y();
}

TEST(AnnotationTest, isPulledByItsHandles)
{
    for (const Tool kind : {Tool::Arrow, Tool::Line}) {
        auto it = made(kind, {1, 2}, {30, 40});
        EXPECT_EQ(it.handles(), (QList<QPointF> {{1, 2}, {30, 40}}));
        it.setHandle(0, {5, 6});
        it.setHandle(1, {7, 8});
        EXPECT_EQ(it.handles(), (QList<QPointF> {{5, 6}, {7, 8}}));
    }
    const auto box = made(Tool::Rect, {80, 90}, {20, 30});
    EXPECT_EQ(box.handles(), (QList<QPointF> {{20, 30}, {80, 30}, {80, 90}, {20, 90}}));
    const QRectF pulled[] = {{{40, 40}, QPointF(80, 90)}, {{20, 40}, QPointF(40, 90)},
        {{20, 30}, QPointF(40, 40)}, {{40, 30}, QPointF(80, 40)}};
    const QRectF flipped[] = {{{80, 90}, QPointF(100, 110)}, {{20, 90}, QPointF(100, 110)},
        {{20, 30}, QPointF(100, 110)}, {{80, 30}, QPointF(100, 110)}};
    for (qsizetype corner = 0; corner < 4; ++corner) {
        auto it = box;
        it.setHandle(corner, {40, 40});
        EXPECT_EQ(QRectF(it.a, it.b), pulled[corner]) << corner;
        it = box;
        it.setHandle(corner, {100, 110});
        EXPECT_EQ(QRectF(it.a, it.b), flipped[corner]) << corner;
    }
    for (const Tool kind : {Tool::Select, Tool::Pen, Tool::Highlighter, Tool::Text, Tool::Step}) {
        auto it = made(kind, {1, 2}, {3, 4});
        it.setHandle(0, {9, 9});
        EXPECT_TRUE(it.handles().isEmpty());
        EXPECT_EQ(it, made(kind, {1, 2}, {3, 4}));
    }
}

TEST(AnnotationTest, movesWithEverythingAndCopiesAllButItsCache)
{
    auto it = made(Tool::Blur, {10, 10}, {60, 60});
    it.points = {{1, 2}};
    drawn(it);
    ASSERT_TRUE(it.blurCache);
    const auto copied = it.copy();
    EXPECT_EQ(copied, it);
    EXPECT_FALSE(copied.blurCache);
    EXPECT_EQ(drawn(copied), drawn(it));
    it.move(3, -4);
    EXPECT_EQ(it.a, QPointF(13, 6));
    EXPECT_EQ(it.b, QPointF(63, 56));
    EXPECT_EQ(it.points.first(), QPointF(4, -2));
    EXPECT_NE(copied, it);
}

TEST(AnnotationTest, drawsNothingWhereThereIsNothingToDraw)
{
    auto beside = made(Tool::Blur, {300, 10}, {360, 60});
    auto narrow = made(Tool::Blur, {10.2, 10}, {10.9, 60});
    auto square = made(Tool::Sticker, {10, 10}, {50, 13});
    for (const auto* it : {&beside, &narrow, &square})
        EXPECT_TRUE(isBlank(drawn(*it)));
    EXPECT_FALSE(beside.blurCache);
    EXPECT_FALSE(narrow.blurCache);
    square.b.ry() += 0.1;
    EXPECT_FALSE(isBlank(drawn(square)));
    EXPECT_TRUE(isBlank(drawn(stroke(Tool::Pen, {}))));
    EXPECT_TRUE(isBlank(drawn(made(Tool::Crop, {10, 10}, {90, 90}))));
    drawn(made(Tool::Arrow, {50, 50}, {50, 50})); // Divides by no length.
}

TEST(AnnotationTest, coversAllItDrawsByItsInk)
{
    for (const double width : {0.5, 4., 24.}) {
        std::vector<Annotation> all;
        for (const Tool kind : allTools)
            all.push_back(made(kind, {150, 150}, {250, 210}, width));
        for (auto& it : all) {
            it.points = {{140, 150}, {250, 190}, {150, 200}};
            it.rotation = 8;
            it.number = 12345;
            it.text = u"fÅÃ̈ jgf"_s;
        }
        for (const TextLook& style : TextStyles::all()) {
            all.push_back(caption(u"Åj\ny"_s, style.name));
            all.back().fontSize = 20 + 4 * width;
            all.back().move(50, 80);
        }
        for (const auto& it : all) {
            QImage image = drawn(it, {400, 400});
            QPainter painter(&image);
            painter.setCompositionMode(QPainter::CompositionMode_Clear);
            painter.fillRect(it.ink().toAlignedRect(), Qt::transparent);
            painter.end();
            EXPECT_TRUE(isBlank(image))
                << int(it.kind) << " of width " << width << ", " << it.style.toStdString();
        }
    }
}

TEST(AnnotationTest, drawsAClearArrowInOnePiece)
{
    auto it = made(Tool::Arrow, {20, 100}, {180, 100}, 10);
    it.color = Colors::withAlpha(Qt::black, 0.5);
    const QImage image = drawn(it);
    for (int x = 30; x < 170; ++x) // Through where the shaft reaches into the head.
        EXPECT_NEAR(qAlpha(image.pixel(x, 100)), 128, 1) << x;
}

TEST(AnnotationTest, drawsAStrokeTheSamePieceByPiece)
{
    QList<QPointF> points;
    for (int step = 0; step < 300; ++step)
        points.append({100 + 80 * std::sin(step / 11.), 100 + 70 * std::cos(step / 7. + 1)});
    for (const Tool kind : {Tool::Pen, Tool::Highlighter}) {
        const auto it = stroke(kind, points, 3);
        const QImage whole = drawn(it);
        QImage pieces(whole.size(), whole.format());
        pieces.fill(Qt::transparent);
        for (int y = 0; y < 200; y += 40)
            for (int x = 0; x < 200; x += 40) {
                QPainter painter(&pieces);
                painter.setRenderHint(QPainter::Antialiasing);
                painter.setClipRect(x, y, 40, 40);
                it.draw(painter, {});
            }
        EXPECT_EQ(pieces, whole) << int(kind);
    }
}

TEST(StickersTest, areDrawingsAllOfThem)
{
    EXPECT_EQ(Stickers::emoji().size(), 40);
    EXPECT_EQ(Stickers::text().size(), 16);
    EXPECT_EQ(Stickers::faceCovers().size(), 8);
    for (const QString& emoji : Stickers::emoji() + Stickers::faceCovers())
        EXPECT_TRUE(EmojiArt::isDrawn(emoji)) << emoji.toStdString();
    EXPECT_FALSE(EmojiArt::isDrawn(u"🦉"_s)); // That one comes from a font.
    auto owl = made(Tool::Sticker, {20, 20}, {120, 120});
    owl.emoji = u"🦉"_s;
    EXPECT_FALSE(isBlank(drawn(owl)));
}

TEST(ColorsTest, contrastByLuminance)
{
    EXPECT_EQ(Colors::contrasting(Qt::white), QColor(Qt::black));
    EXPECT_EQ(Colors::contrasting(Qt::green), QColor(Qt::white)); // 0.587
    EXPECT_EQ(Colors::contrasting(QColor(13, 255, 13)), QColor(Qt::black));
    EXPECT_EQ(Colors::contrasting(QColor()), QColor(Qt::white));
    EXPECT_EQ(Colors::contrasting(Colors::red), QColor(Qt::white));
    EXPECT_EQ(Colors::contrasting(QColor::fromCmyk(0, 0, 255, 0)), QColor(Qt::black)); // Yellow.
    EXPECT_EQ(Colors::towardWhite(Qt::black, 0.75).rgba(), qRgb(191, 191, 191));
    EXPECT_EQ(Colors::towardWhite(QColor(), 0.75), QColor(Qt::white));
}
