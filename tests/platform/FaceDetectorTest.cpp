// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/ModuleFaceDetector.h"

#include "bench/ScreenContent.h"
#include "tests/platform/TextCorpus.h"

#include <gmock/gmock.h>

#include <QPainter>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// Of the package python3-skimage: one woman, 512 × 512 pixels.
const QString photograph = u"/usr/lib/python3/dist-packages/skimage/data/astronaut.png"_s;

/// From the forehead to the chin, and what no cover may leave free.
const QRectF wholeFace(176, 62, 98, 122);
const QRectF eyesToMouth(190, 92, 70, 62);

class FaceDetectorTest : public testing::Test {
protected:
    void SetUp() override
    {
        photo = QImage(photograph);
        ASSERT_FALSE(photo.isNull()) << "tools/packages.txt names the package";
    }

    QList<QRectF> facesIn(const QImage& picture)
    {
        const auto faces = detector.detect(picture);
        EXPECT_TRUE(faces) << faces.error().message.toStdString();
        return faces ? *faces : QList<QRectF>();
    }

    /// @param part of the picture that shows the photograph.
    void expectTheFace(const QImage& picture, const QRectF& part)
    {
        const auto faces = facesIn(picture);
        ASSERT_EQ(faces.size(), 1);
        const auto placed = [&](const QRectF& box) {
            const double scale = part.width() / photo.width();
            return QRectF(part.topLeft() + box.topLeft() * scale, box.size() * scale);
        };
        EXPECT_TRUE(faces.first().contains(placed(eyesToMouth)));
        EXPECT_GT((faces.first() & placed(wholeFace)).height(), placed(wholeFace).height() * 0.9);
        EXPECT_LT((faces.first() | placed(wholeFace)).height(), placed(wholeFace).height() * 1.2);
        EXPECT_LT(faces.first().width(), placed(wholeFace).width() * 1.2);
        EXPECT_TRUE(QRectF(picture.rect()).contains(faces.first()));
    }

    QImage photo;
    ModuleFaceDetector detector;
};

} // namespace

TEST_F(FaceDetectorTest, findsAFaceFromForeheadToChinInWhateverItIs)
{
    expectTheFace(photo, photo.rect());
    expectTheFace(photo.convertToFormat(QImage::Format_Grayscale8), photo.rect());
    expectTheFace(photo.convertToFormat(QImage::Format_Indexed8), photo.rect());
    QImage sharp = photo.convertToFormat(QImage::Format_ARGB32);
    sharp.setDevicePixelRatio(2);
    expectTheFace(sharp, photo.rect());

    QImage cutOut(700, 700, QImage::Format_ARGB32_Premultiplied);
    cutOut.fill(Qt::transparent);
    QPainter(&cutOut).drawImage(100, 150, photo);
    expectTheFace(cutOut, {100, 150, 512, 512});
}

TEST_F(FaceDetectorTest, findsAFaceOnALargeScreen)
{
    QImage screen = drawScreen(ScreenContent::Editor, {3840, 2160});
    const QRectF part(1900, 700, 1024, 1024);
    QPainter(&screen).drawImage(part, photo);
    expectTheFace(screen, part);
}

TEST_F(FaceDetectorTest, findsNoFaceWhereThereIsNone)
{
    for (const auto content : allScreenContents) {
        SCOPED_TRACE(nameOf(content).toStdString());
        EXPECT_THAT(facesIn(drawScreen(content, {2560, 1440})), testing::IsEmpty());
    }
    for (const bool dark : {false, true})
        for (const auto& font : {u"DejaVu Sans"_s, u"Liberation Serif"_s, u"DejaVu Sans Mono"_s}) {
            SCOPED_TRACE(font.toStdString());
            const auto page = TextCorpus::page(TextCorpus::lines(30, 7), {font, 13, 1, dark});
            EXPECT_THAT(facesIn(page), testing::IsEmpty());
        }
}

TEST_F(FaceDetectorTest, takesPicturesOfAnyShape)
{
    for (const QSize size : {QSize(0, 0), {1, 1}, {31, 31}, {33, 32}, {32, 4000}, {12'000, 33}}) {
        QImage picture(size, QImage::Format_RGB32);
        picture.fill(Qt::lightGray);
        EXPECT_THAT(facesIn(picture), testing::IsEmpty()) << size.width() << " × " << size.height();
    }
}

TEST_F(FaceDetectorTest, answersSeveralThreads)
{
    std::vector<std::jthread> threads;
    for (int i = 0; i < 3; ++i)
        threads.emplace_back([this] { expectTheFace(photo, photo.rect()); });
}
