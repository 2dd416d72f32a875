// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/text/Contrast.h"
#include "platform/freedesktop/text/FoundLine.h"
#include "platform/freedesktop/text/Languages.h"
#include "platform/freedesktop/text/Misreadings.h"
#include "platform/freedesktop/text/PageImage.h"

#include <gmock/gmock.h>

#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

int greyAt(const QImage& image, int x, int y)
{
    return image.constScanLine(y)[x];
}

/// A picture with rectangles on it, each over those before.
QImage painted(QSize size, QColor ground, const QList<std::pair<QRect, QColor>>& rectangles)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    for (const auto& [rectangle, colour] : rectangles)
        painter.fillRect(rectangle, colour);
    painter.end();
    return greyOf(image);
}

struct Confident {
    QString text;
    double confidence;
};

/// A line of words side by side, letters 20 pixels high, those of "gjpqy|" reaching 6 below.
FoundLine line(const QList<Confident>& words)
{
    FoundLine made;
    int x = 0;
    for (const auto& [text, confidence] : words) {
        const bool reaches = std::any_of(
            text.begin(), text.end(), [](QChar each) { return u"gjpqy|"_s.contains(each); });
        const QRect box(x, 0, 10 * int(text.size()), reaches ? 26 : 20);
        made.words << FoundWord {text, box, confidence, reaches ? 6 : 0};
        made.box |= box;
        x += box.width() + 8;
    }
    return made;
}

FoundLine line(const QString& text)
{
    QList<Confident> words;
    for (const auto& word : text.split(u' '))
        words << Confident {word, 99};
    return line(words);
}

QStringList texts(const QList<FoundLine>& lines)
{
    QStringList all;
    for (const auto& each : lines)
        all << each.text();
    return all;
}

} // namespace

TEST(TextRulesTest, readsEnglishAndWhatTheUserSpeaksAndKeepsFewOthers)
{
    struct Case {
        QStringList spoken, installed, usual, others;
    };
    const QStringList all {u"Latin"_s, u"chi_sim"_s, u"chi_tra"_s, u"deu"_s, u"eng"_s, u"fra"_s,
        u"jpn_vert"_s, u"nor"_s, u"osd"_s, u"rus"_s, u"srp_latn"_s};
    const Case cases[] {
        {{u"de-AT"_s, u"de"_s}, {u"deu"_s, u"eng"_s, u"osd"_s}, {u"eng"_s, u"deu"_s}, {}},
        {{u"en-US"_s}, {u"deu"_s, u"eng"_s, u"osd"_s}, {u"eng"_s}, {u"deu"_s}},
        {{u"C"_s}, {u"eng"_s}, {u"eng"_s}, {}},
        {{u"fr"_s}, {u"deu"_s, u"osd"_s}, {u"deu"_s}, {}},
        {{u"zh-Hant-TW"_s, u"zh-Hans-CN"_s, u"nb-NO"_s}, all,
            {u"eng"_s, u"chi_tra"_s, u"chi_sim"_s}, {u"Latin"_s, u"deu"_s, u"fra"_s, u"nor"_s}},
        {{u"nn-NO"_s, u"sr-Latn-RS"_s}, all, {u"eng"_s, u"nor"_s, u"srp_latn"_s},
            {u"Latin"_s, u"chi_sim"_s, u"chi_tra"_s, u"deu"_s}},
        {{u"en"_s}, {u"osd"_s}, {}, {}},
    };
    for (const auto& [spoken, installed, usual, others] : cases) {
        const auto choice = Languages::choose(spoken, installed);
        EXPECT_EQ(choice.usual, usual) << spoken.join(u' ').toStdString();
        EXPECT_EQ(choice.others, others) << spoken.join(u' ').toStdString();
    }
    EXPECT_EQ(Languages::notInstalled({u"de-AT"_s, u"sr-Latn"_s}, {u"eng"_s, u"srp"_s}),
        (QStringList {u"deu"_s, u"srp_latn"_s}));
    EXPECT_TRUE(Languages::missing({u"zh-Hant"_s})
                    .contains(u"tesseract-ocr-eng or tesseract-ocr-chi-tra"_s));
}

TEST(TextRulesTest, keepsLinesOfWordsAndSingleCharactersBesideThem)
{
    const FoundLine word = line(u"Hello"_s), doubtful = line({{u"Sphlnx"_s, 97}}),
                    junk = line({{u"»~ Pv"_s, 96}}), digit = line(u"7"_s), image {},
                    dot = line({{u"."_s, 98}});
    EXPECT_THAT(texts(withoutGarbage({junk, digit, image, word, dot, doubtful})),
        testing::ElementsAre(u"7"_s, u"Hello"_s, u"Sphlnx"_s));
    EXPECT_TRUE(withoutGarbage({digit, image, junk}).isEmpty()) << "an icon reads like a letter";

    const auto kept = withoutGarbage({line({{u"@"_s, 91}, {u"notes.h"_s, 99}, {u"+"_s, 99},
        {u"x"_s, 90}, {u"1"_s, 99}, {u"B®"_s, 95}})});
    EXPECT_THAT(texts(kept), testing::ElementsAre(u"notes.h + x 1"_s));
    EXPECT_EQ(kept[0].box.left(), 18) << "behind the icon";
}

TEST(TextRulesTest, correctsWhatIsOftenMisread)
{
    auto bar = line(u"Home | About"_s); // Reaches below.
    auto letter = line(u"So | think that | am right, and |'m not"_s);
    for (auto& word : letter.words)
        if (word.text.startsWith(u'|')) {
            word.box.setHeight(21);
            word.foot = 1;
        }
    QList<FoundLine> lines {bar, letter, line(u"https: //a.org std: :move Note: /usr"_s),
        line(u"https:/Awww.a.org http//www.b.org www.c.org"_s),
        line(u"say(\"one”) isn’t 'a' it's"_s)};
    correctMisreadings(lines);
    EXPECT_THAT(texts(lines),
        testing::ElementsAre(u"Home | About"_s, u"So I think that I am right, and I'm not"_s,
            u"https://a.org std::move Note: /usr"_s,
            u"https://www.a.org http://www.b.org www.c.org"_s, u"say(\"one\") isn't 'a' it's"_s));
    QList<FoundLine> curly {line(u"“Yes,” she said, “it’s there.”"_s)};
    correctMisreadings(curly);
    EXPECT_EQ(curly[0].text(), u"“Yes,” she said, “it’s there.”"_s);
}

TEST(TextRulesTest, enlargesWithoutChangingGreysOrPlaces)
{
    QImage grey(4, 3, QImage::Format_Grayscale8);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 4; ++x)
            grey.scanLine(y)[x] = uchar(x * 60);
    for (const double factor : {1.0, 1.6, 2.0, 3.0}) {
        const QImage larger = enlarged(grey, factor);
        ASSERT_EQ(larger.size(), QSize(qRound(4 * factor), qRound(3 * factor)));
        for (int x = 1; x < larger.width(); ++x)
            EXPECT_GE(greyAt(larger, x, 1), greyAt(larger, x - 1, 1));
        EXPECT_EQ(greyAt(larger, 0, 0), 0);
        EXPECT_NEAR(greyAt(larger, larger.width() - 1, 0), 180, 5);
    }
    EXPECT_EQ(greyAt(enlarged(grey, 2), 2, 2), 45) << "a quarter of the way to the left";

    QImage picture(200, 100, QImage::Format_RGB32);
    picture.fill(Qt::white);
    picture.setPixel(10, 20, qRgb(0, 0, 0));
    for (const double scale : {1.0, 1.5, 2.0, 3.0}) {
        const auto page = PageImage::of(greyOf(picture), scale);
        EXPECT_DOUBLE_EQ(page.factor, std::max(1.0, 2 / scale));
        const QPoint dot = page.image.rect().topLeft()
            + QPoint(page.margin + int(10.5 * page.factor), page.margin + int(20.5 * page.factor));
        EXPECT_LT(greyAt(page.image, dot.x(), dot.y()), 128);
        EXPECT_EQ(greyAt(page.image, page.margin / 2, page.image.height() - 1), 255);
        EXPECT_TRUE(page.inPicture(QRect(dot, QSize(1, 1))).contains(10, 20));
    }
    EXPECT_LT(PageImage::of(QImage(2, 20'000, QImage::Format_Grayscale8), 1).image.height(), 32'767)
        << "as much as Tesseract takes";
}

TEST(TextRulesTest, makesTextBlackOnWhiteWhateverItStandsOn)
{
    const QColor page(250, 250, 250), button(0, 110, 230), dark(30, 30, 34), pale(80, 80, 84);
    const QRect onPage(20, 20, 6, 10), onButton(140, 110, 6, 10), inDark(40, 220, 6, 10),
        comment(100, 220, 6, 10);
    const QImage grey = painted({400, 300}, page,
        {{onPage, Qt::black}, {{100, 100, 90, 30}, button}, {onButton, Qt::white},
            {{0, 200, 400, 100}, dark}, {inDark, Qt::white}, {comment, pale}});
    const QImage result = blackOnWhite(grey, 1);
    for (const auto& text : {onPage, onButton, inDark, comment}) {
        const QPoint middle = text.center();
        EXPECT_LT(greyAt(result, middle.x(), middle.y()), 30) << text.x();
        EXPECT_EQ(greyAt(result, text.left() - 2, middle.y()), 255) << text.x();
        EXPECT_EQ(greyAt(result, text.right() + 2, middle.y()), 255) << text.x();
    }
    EXPECT_EQ(greyAt(result, 99, 115), 255) << "the edge of the button is no text";
}

TEST(TextRulesTest, keepsLargeLettersAndWindowsThatOthersCover)
{
    // A heading's bold D, of which more than half is filled.
    const QRect outside(60, 60, 60, 70), hole(80, 75, 20, 40);
    const QImage heading = blackOnWhite(
        painted({400, 300}, Qt::white, {{outside, Qt::black}, {hole, Qt::white}}), 1);
    EXPECT_LT(greyAt(heading, 70, 90), 30);
    EXPECT_EQ(greyAt(heading, 90, 90), 255);

    const QRect letter(420, 30, 6, 10);
    const QImage covered
        = blackOnWhite(painted({600, 400}, Qt::white,
                           {{{200, 0, 400, 400}, QColor(40, 40, 40)},
                               {{100, 60, 460, 340}, QColor(240, 240, 240)}, {letter, Qt::white}}),
            1);
    EXPECT_LT(greyAt(covered, letter.center().x(), letter.center().y()), 30);
    EXPECT_EQ(greyAt(covered, 300, 20), 255);
}

TEST(TextRulesTest, takesWhatIsTransparentForWhite)
{
    QImage picture(20, 20, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    picture.setPixelColor(5, 5, Qt::black);
    const QImage grey = greyOf(picture);
    EXPECT_EQ(greyAt(grey, 0, 0), 255);
    EXPECT_EQ(greyAt(grey, 5, 5), 0);
}
