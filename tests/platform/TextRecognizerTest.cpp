// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/ModuleTextRecognizer.h"

#include "platform/freedesktop/Module.h"
#include "tests/platform/SampleCodes.h"
#include "tests/platform/TextCorpus.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QElapsedTimer>
#include <QPainter>
#include <QTemporaryDir>

#include <random>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

const QString font = u"DejaVu Sans"_s;

class TextRecognizerTest : public testing::Test {
protected:
    RecognisedText read(const QImage& picture, double scale = 1)
    {
        auto text = recognizer.recognise(picture, scale, cancelled);
        EXPECT_TRUE(text) << text.error().message.toStdString();
        return text ? *std::move(text) : RecognisedText {};
    }

    QString textOf(const QImage& picture, double scale = 1)
    {
        QStringList lines;
        for (const auto& line : read(picture, scale).lines)
            lines << line.text;
        return lines.join(u'\n');
    }

    std::atomic<bool> cancelled = false;
    ModuleTextRecognizer recognizer {QStringList {u"en"_s}};
};

/// Draws text of 13 points into a picture.
class Artist final {
public:
    Artist(QSize size, QColor ground)
        : m_image(size, QImage::Format_RGB32)
    {
        m_image.fill(ground);
    }

    Artist& box(QRect rectangle, QColor colour)
    {
        QPainter painter(&m_image);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setBrush(colour);
        painter.setPen(Qt::NoPen);
        painter.drawRoundedRect(rectangle, 6, 6);
        return *this;
    }

    Artist& text(QPoint foot, const QString& words, QColor colour = Qt::black)
    {
        QPainter painter(&m_image);
        QFont letters(font);
        letters.setPixelSize(13);
        painter.setFont(letters);
        painter.setPen(colour);
        painter.drawText(foot, words);
        return *this;
    }

    Artist& picture(QPoint at, const QImage& image)
    {
        QPainter(&m_image).drawImage(at, image);
        return *this;
    }

    const QImage& image() const { return m_image; }

private:
    QImage m_image;
};

QImage noise(QSize size, int strength)
{
    std::mt19937 random(7);
    QImage image(size, QImage::Format_Grayscale8);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.scanLine(y)[x] = uchar(128 + (int(random() % 256) - 128) * strength / 100);
    return image;
}

QImage gradient(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient colours(0, 0, size.width(), size.height());
    colours.setColorAt(0, QColor(40, 20, 120));
    colours.setColorAt(1, QColor(250, 200, 80));
    painter.fillRect(image.rect(), colours);
    return image;
}

QImage shapes()
{
    std::mt19937 random(3);
    Artist artist({600, 400}, QColor(245, 245, 245));
    for (int i = 0; i < 60; ++i)
        artist.box({int(random() % 560), int(random() % 360), 6 + int(random() % 40),
                       6 + int(random() % 40)},
            QColor::fromHsv(int(random() % 360), 180, 200));
    return artist.image();
}

qsizetype threads()
{
    return QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size();
}

} // namespace

TEST_F(TextRecognizerTest, readsNearlyEveryCharacter)
{
    struct Case {
        double scale;
        double mostErrors; ///< Of a hundred characters.
    };
    quint32 seed = 100;
    for (const auto& [scale, most] : {Case {1, 1.5}, Case {2, 1}}) {
        int errors = 0;
        qsizetype characters = 0;
        for (const int points : {10, 13, 20})
            for (const bool dark : {false, true}) {
                const auto lines = TextCorpus::lines(8, seed++);
                const QString expected = lines.join(u'\n');
                const QImage page = TextCorpus::page(lines, {font, points, scale, dark});
                errors += TextCorpus::errors(textOf(page, scale), expected);
                characters += expected.size();
            }
        EXPECT_LE(100.0 * errors / double(characters), most) << "at scale " << scale;
    }
}

TEST_F(TextRecognizerTest, readsLightTextOnButtonsAndPaleTextOnDarkThemes)
{
    const QColor dark(30, 32, 36);
    const auto window
        = Artist({420, 220}, Qt::white)
              .text({20, 30}, u"Do you want to save the changes?"_s)
              .box({20, 50, 110, 32}, QColor(0, 110, 230))
              .text({38, 71}, u"Save now"_s, Qt::white)
              .box({150, 50, 110, 32}, QColor(200, 40, 40))
              .text({168, 71}, u"Discard all"_s, Qt::white)
              .box({0, 110, 420, 110}, dark)
              .text({20, 140}, u"const int result = 42;"_s, QColor(230, 230, 230))
              .text({20, 170}, u"// this is what was asked for"_s, QColor(92, 99, 112));
    const QString text = textOf(window.image());
    for (const auto& part : {u"Do you want to save the changes?"_s, u"Save now"_s, u"Discard all"_s,
             u"const int result = 42;"_s, u"this is what was asked for"_s})
        EXPECT_TRUE(text.contains(part)) << part.toStdString() << " in\n" << text.toStdString();
}

TEST_F(TextRecognizerTest, readsColumnsOneAfterTheOtherAndKnowsWhereLinesAre)
{
    Artist artist({760, 330}, Qt::white);
    artist.box({0, 0, 180, 330}, QColor(235, 237, 240));
    const QStringList names {u"Inbox"_s, u"Drafts"_s, u"Archive"_s, u"Deleted items"_s};
    for (int i = 0; i < 4; ++i)
        artist.text({24, 40 + 32 * i}, names[i]);
    const QString sentence = u"This is line number %1 of the letter that is open beside."_s;
    for (int i = 0; i < 9; ++i)
        artist.text({220, 40 + 20 * i}, sentence.arg(i + 1));
    const auto read = this->read(artist.image());
    ASSERT_EQ(read.lines.size(), 13);
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(read.lines[i].text, names[i]);
    for (int i = 0; i < 9; ++i)
        EXPECT_EQ(read.lines[4 + i].text, sentence.arg(i + 1));
    EXPECT_TRUE(QRect(10, 120, 140, 26).contains(read.lines[3].box));
    EXPECT_TRUE(read.lines[3].box.contains(60, 132));
}

TEST_F(TextRecognizerTest, readsASingleWordCutOutTightly)
{
    for (const auto& word : {u"Settings"_s, u"OK"_s, u"1,299.99"_s})
        for (const bool dark : {false, true}) {
            const QImage page = TextCorpus::page({word}, {font, 13, 1, dark});
            EXPECT_EQ(textOf(page.copy(page.rect().adjusted(13, 14, -13, -14))), word);
        }
}

TEST_F(TextRecognizerTest, findsNothingWhereThereIsNoText)
{
    QImage white(500, 300, QImage::Format_RGB32);
    white.fill(Qt::white);
    QImage transparent(50, 30, QImage::Format_ARGB32_Premultiplied);
    transparent.fill(Qt::transparent);
    for (const auto& picture : {white, transparent, white.copy(0, 0, 1, 1), QImage(),
             gradient({600, 400}), gradient({300, 20}), noise({500, 300}, 100),
             noise({500, 300}, 10), noise({120, 30}, 100), shapes()})
        for (const double scale : {1.0, 2.0}) {
            const auto read = this->read(picture, scale);
            EXPECT_TRUE(read.lines.isEmpty()) << read.lines.first().text.toStdString();
            EXPECT_TRUE(read.codes.isEmpty()) << read.codes.first().toStdString();
        }
}

TEST_F(TextRecognizerTest, readsQrAndBarCodes)
{
    for (const int module : {2, 3, 8})
        for (const bool dark : {false, true}) {
            const auto read = this->read(SampleCodes::qrCode(module, dark));
            EXPECT_THAT(read.codes, testing::ElementsAre(SampleCodes::qrText)) << module << dark;
            EXPECT_TRUE(read.lines.isEmpty()) << read.lines.first().text.toStdString();
        }
    const auto both = read(Artist({500, 420}, Qt::white)
                               .picture({40, 300}, SampleCodes::barCode(2))
                               .picture({40, 60}, SampleCodes::qrCode(6))
                               .text({40, 40}, u"Scan this to open the page"_s)
                               .image());
    EXPECT_THAT(both.codes, testing::ElementsAre(SampleCodes::qrText, SampleCodes::barText));
    ASSERT_EQ(both.lines.size(), 1);
    EXPECT_EQ(both.lines[0].text, u"Scan this to open the page"_s);
}

TEST_F(TextRecognizerTest, readsLanguagesThatTheUserSpeaksAndScriptsThatAreInstalled)
{
    const QString german = u"Größere Änderungen müssen überprüft werden."_s;
    ModuleTextRecognizer ofGerman({u"de-AT"_s, u"de"_s});
    const auto read
        = ofGerman.recognise(TextCorpus::page({german}, {font, 16, 1, false}), 1, cancelled);
    ASSERT_TRUE(read);
    ASSERT_EQ(read->lines.size(), 1);
    EXPECT_EQ(read->lines[0].text, german);

    const QStringList both {u"Press the button to save the file."_s,
        u"Нажмите кнопку, чтобы сохранить файл."_s, u"Привет, мир! Это проверка."_s};
    EXPECT_EQ(textOf(TextCorpus::page(both, {font, 16, 1, false})), both.join(u'\n'));
}

TEST_F(TextRecognizerTest, saysWhatToInstallWithoutAnyLanguage)
{
    const QTemporaryDir empty;
    qputenv("TESSDATA_PREFIX", empty.path().toUtf8());
    ModuleTextRecognizer ofGerman({u"de"_s});
    const auto read = ofGerman.recognise(gradient({50, 50}), 1, cancelled);
    qunsetenv("TESSDATA_PREFIX");
    ASSERT_FALSE(read);
    EXPECT_TRUE(read.error().message.contains(u"tesseract-ocr-eng or tesseract-ocr-deu"_s))
        << read.error().message.toStdString();
    EXPECT_FALSE(moduleFunction(u"pixmallow-nosuch"_s, "f"));
}

TEST_F(TextRecognizerTest, endsSoonWhenCancelled)
{
    const QImage page = TextCorpus::page(TextCorpus::lines(40, 9), {font, 13, 1, false});
    QElapsedTimer timer;
    timer.start();
    read(page);
    const auto whole = timer.restart();
    std::thread canceller([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(whole / 3));
        cancelled = true;
    });
    const auto read = recognizer.recognise(page, 1, cancelled);
    const auto part = timer.elapsed();
    canceller.join();
    ASSERT_FALSE(read);
    EXPECT_TRUE(read.error().isCancelled());
    EXPECT_LT(part, whole * 2 / 3);
}

TEST_F(TextRecognizerTest, readsInItsOwnThreadAloneAndAgainAfterRelease)
{
    const QImage page = TextCorpus::page({u"One two three"_s}, {font, 13, 1, false});
    std::thread([&] {
        const auto before = threads();
        EXPECT_EQ(textOf(page), u"One two three"_s);
        EXPECT_EQ(threads(), before) << "helpers that spin slow it tenfold beside a busy program";
        recognizer.release();
        EXPECT_EQ(textOf(page), u"One two three"_s);
    }).join();
}
