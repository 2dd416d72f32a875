// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/OCR.h"

#include "platform/fake/FakeTextRecognizer.h"

#include <gtest/gtest.h>

#include <QThread>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class OCRTest : public testing::Test {
protected:
    const std::shared_ptr<FakeTextRecognizer> recognizer = std::make_shared<FakeTextRecognizer>();
    const QImage picture {30, 20, QImage::Format_RGB32};
};

RecognisedText recognised(const QStringList& lines, const QStringList& codes)
{
    RecognisedText text;
    for (const auto& line : lines)
        text.lines << RecognisedText::Line {line, {}};
    text.codes = codes;
    return text;
}

} // namespace

TEST_F(OCRTest, joinsLinesAndTakesCodesWhenThereIsNoOtherText)
{
    OCR ocr(recognizer);
    struct Case {
        RecognisedText read;
        QString text;
        int lines;
    };
    for (const auto& [read, text, lines] :
        {Case {recognised({u"one"_s, u"two"_s}, {}), u"one\ntwo"_s, 2},
            Case {recognised({u"one"_s}, {u"code"_s}), u"one"_s, 1}, Case {{}, {}, 0},
            Case {recognised({}, {u"a\nb\n"_s, u"c"_s}), u"a\nb\nc"_s, 3}}) {
        recognizer->answer = read;
        const auto result = ocr.recognize(picture, 2).wait();
        ASSERT_TRUE(result);
        EXPECT_EQ(result->text, text);
        EXPECT_EQ(result->lines, lines);
    }
    EXPECT_NE(recognizer->readIn, QThread::currentThread());
    EXPECT_EQ(recognizer->readSize, QSize(30, 20));
    EXPECT_EQ(recognizer->readScale, 2);

    recognizer->answer = Error::failed(u"No language."_s);
    const auto failed = ocr.recognize(picture).wait();
    ASSERT_FALSE(failed);
    EXPECT_EQ(failed.error().message, u"No language."_s);
}

TEST_F(OCRTest, cancelsWhatIsReadAndWhatWaits)
{
    OCR ocr(recognizer);
    recognizer->holdsBack = true;
    auto first = ocr.recognize(picture), second = ocr.recognize(picture);
    while (recognizer->reading == 0)
        QThread::msleep(1);
    ocr.cancel();
    EXPECT_TRUE(first.wait().error().isCancelled());
    EXPECT_TRUE(second.wait().error().isCancelled());
    recognizer->holdsBack = false;
    recognizer->answer = recognised({u"next"_s}, {});
    EXPECT_EQ(ocr.recognize(picture).wait()->text, u"next"_s);
}

TEST_F(OCRTest, givesMemoryBackOnceAfterAPause)
{
    OCR ocr(recognizer, 50ms);
    std::ignore = ocr.recognize(picture).wait();
    EXPECT_EQ(recognizer->releases, 0);
    while (recognizer->releases == 0)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
    std::ignore = ocr.recognize(picture).wait();
    while (recognizer->releases == 1)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
}

TEST_F(OCRTest, letsTheProgramEndAtOnceWhateverTheRecognizerDoes)
{
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const auto endWhileReading = [this] {
        alarm(10); // If it waits for the recogniser after all.
        recognizer->holdsBack = true;
        recognizer->isStubborn = true;
        {
            OCR ocr(recognizer);
            auto pending = ocr.recognize(picture);
            while (recognizer->reading == 0)
                QThread::msleep(1);
        }
        std::fputs("written", stderr);
        std::exit(7);
    };
    EXPECT_EXIT(endWhileReading(), testing::ExitedWithCode(7), "written");
}
