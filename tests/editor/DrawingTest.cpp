// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "editor/Annotation.h"
#include "editor/Colors.h"
#include "editor/LaidText.h"
#include "editor/TextStyles.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QGuiApplication>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize pictureSize(180, 110);

/// Light and dark, with something to see under what is clear or pixelated.
QImage picture()
{
    QImage image(pictureSize, QImage::Format_RGB32);
    image.fill(QColor(0xf4, 0xf4, 0xf7));
    QPainter painter(&image);
    painter.fillRect(110, 0, 70, 110, QColor(0x23, 0x23, 0x27));
    for (int line = 0; line < 7; ++line)
        painter.fillRect(
            12, 8 + 14 * line, 50 + line * 37 % 90, 5, QColor::fromHsv(line * 47, 90, 190));
    return image;
}

Annotation made(Tool kind, const QColor& color = Colors::red)
{
    Annotation it(kind, color, 4);
    it.a = {30, 85};
    it.b = {150, 25};
    return it;
}

Annotation wave(Tool kind, const QColor& color)
{
    Annotation it = made(kind, color);
    for (int step = 0; step <= 40; ++step)
        it.points.append({20 + 3.5 * step, 55 + 25 * std::sin(step / 5.)});
    return it;
}

Annotation caption(const QString& style, const QString& text = u"Jelly 123"_s)
{
    Annotation it = made(Tool::Text, Colors::pink);
    it.a = {90, 36};
    it.centered = true;
    it.text = text;
    it.style = style;
    return it;
}

Annotation sticker(const QString& emoji, double rotation)
{
    Annotation it = made(Tool::Sticker);
    it.a = {50, 10};
    it.b = {140, 100};
    it.emoji = emoji;
    it.rotation = rotation;
    return it;
}

struct Subject {
    QString name;
    std::vector<Annotation> annotations;
};

std::vector<Subject> subjects()
{
    std::vector<Subject> all;
    all.push_back({u"arrow"_s, {made(Tool::Arrow)}});
    all.push_back({u"rect"_s, {made(Tool::Rect)}});
    all.push_back({u"ellipse"_s, {made(Tool::Ellipse)}});
    all.push_back({u"line"_s, {made(Tool::Line)}});
    all.push_back({u"redact"_s, {made(Tool::Redact, Qt::black)}});
    all.push_back({u"blur"_s, {made(Tool::Blur)}});
    all.push_back({u"pen"_s, {wave(Tool::Pen, Colors::blue)}});
    all.push_back({u"highlighter"_s, {wave(Tool::Highlighter, Colors::yellow)}});
    all.push_back({u"sticker"_s, {sticker(u"😎"_s, -8)}});
    all.push_back({u"sticker-font"_s, {sticker(u"🦉"_s, 8)}});
    Annotation first = made(Tool::Step), second = made(Tool::Step, Colors::yellow);
    second.a = {130, 50};
    second.number = 12;
    second.fontSize = 40;
    all.push_back({u"step"_s, {first, second}});
    for (const TextLook& style : TextStyles::all())
        all.push_back({u"text-"_s + QString(style.name).toLower(), {caption(style.name)}});
    auto writings = caption(u"Classic"_s, u"Ça 🔥 y\nשלום 1\nنص fi\u0301"_s);
    writings.a = {14, 6};
    writings.centered = false;
    all.push_back({u"text-writings"_s, {writings}});
    auto rainbow = caption(u"Gradient"_s, u"e\u0301tude 🎉\nофис"_s);
    rainbow.a.ry() = 18;
    all.push_back({u"text-rainbow"_s, {rainbow}});
    auto meme = caption(u"Meme"_s, u"grüße\nиз 🐸"_s);
    meme.a.ry() = 8;
    all.push_back({u"text-meme-lines"_s, {meme}});
    return all;
}

/// Left as it is, right at twice the size.
QImage drawn(const Subject& subject)
{
    const QImage base = picture();
    QImage image(pictureSize.width() * 3, pictureSize.height() * 2, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (const int scale : {1, 2}) {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate((scale - 1) * pictureSize.width(), 0);
        painter.scale(scale, scale);
        painter.setClipRect(base.rect());
        painter.drawImage(0, 0, base);
        for (const Annotation& it : subject.annotations)
            it.draw(painter, base);
    }
    return image;
}

QString goldenFile(const QString& name)
{
    return QDir(QStringLiteral(PIXMALLOW_GOLDEN)).filePath(name + u".png"_s);
}

/// Of all channels, and where it is greatest.
struct Difference {
    double mean = 0;
    double most = 0;
};

Difference difference(const QImage& one, const QImage& other)
{
    Difference found;
    if (one.size() != other.size())
        return {255, 255};
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            for (int shift = 0; shift < 24; shift += 8) {
                const int by = std::abs(
                    int(one.pixel(x, y) >> shift & 255) - int(other.pixel(x, y) >> shift & 255));
                found.mean += by;
                found.most = std::max(found.most, double(by));
            }
    found.mean /= 3. * one.width() * one.height();
    return found;
}

class DrawingTest : public testing::Test {
protected:
    static void SetUpTestSuite() { QGuiApplication::setFont(QFont(u"DejaVu Sans"_s)); }
};

} // namespace

/// PIXMALLOW_NEW_GOLDEN_IMAGES=1 takes what is drawn now for right; look at it before you commit
/// it.
TEST_F(DrawingTest, looksAsItDid)
{
    for (const Subject& subject : subjects()) {
        const QString file = goldenFile(subject.name);
        const QImage image = drawn(subject);
        if (qEnvironmentVariableIntValue("PIXMALLOW_NEW_GOLDEN_IMAGES")) {
            ASSERT_TRUE(image.save(file)) << file.toStdString();
            continue;
        }
        const auto [mean, most] = difference(image, QImage(file).convertToFormat(image.format()));
        EXPECT_TRUE(mean < 0.05 && most < 48)
            << subject.name.toStdString() << " differs by " << mean << ", at most " << most;
    }
}

/// The toolkit's font of colour emoji draws nothing more once somebody asked it for an outline.
TEST_F(DrawingTest, leavesTheEmojiFontUnharmed)
{
    const auto owl = [] { return drawn({{}, {sticker(u"🦉"_s, 0)}}); };
    const QImage before = owl();
    for (const TextLook& style : TextStyles::all())
        drawn({{}, {caption(style.name, u"🦉 as text"_s)}});
    EXPECT_EQ(owl(), before);
    const auto text
        = LaidText::of(u"🦉😭❤️👍🏽🏳️‍🌈"_s, systemFont(QFont::Bold));
    EXPECT_TRUE(text->outline().isEmpty()); // Not one of them in black and white.
}

TEST_F(DrawingTest, laysOutLinesAndWritings)
{
    const QFont font = systemFont(QFont::Bold);
    const auto one = LaidText::of(u"wide line"_s, font),
               two = LaidText::of(u"wide line\ni"_s, font);
    EXPECT_EQ(two->size().width(), one->size().width());
    EXPECT_NEAR(two->size().height(), 2 * one->size().height(), 1);
    EXPECT_EQ(LaidText::of(u"\n"_s, font)->size().height(), two->size().height());
    const auto lastLetter = [&](const QString& text, LaidText::Lines lines) {
        return LaidText::of(text, font, lines)
            ->letters()
            .back()
            .outline.boundingRect()
            .center()
            .x();
    };
    using enum LaidText::Lines;
    const double width = one->size().width();
    EXPECT_LT(lastLetter(u"wide line\ni"_s, Natural), width / 4);
    EXPECT_NEAR(lastLetter(u"wide line\ni"_s, Centred), width / 2, 2);
    EXPECT_GT(lastLetter(u"wide line\nו"_s, Natural), width * 3 / 4); // From right to left.
    // A letter and its accent are one, a line break and an emoji count.
    const auto letters = LaidText::of(u"e\u0301\n🎉fi"_s, font)->letters();
    ASSERT_EQ(letters.size(), 3U);
    EXPECT_EQ(letters[0].index, 0);
    EXPECT_EQ(letters[1].index, 3);
    EXPECT_EQ(letters[2].index, 4);
}
