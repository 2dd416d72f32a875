// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/Files.h"
#include "platform/fake/FakePlatform.h"
#include "tests/TestFiles.h"

#include <gmock/gmock.h>

#include <QScopeGuard>
#include <QTemporaryDir>

#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QDateTime afternoon(QDate(2025, 3, 7), QTime(14, 5, 9));

QImage gradient(QSize size, QImage::Format format = QImage::Format_RGB32)
{
    QImage image(size, format);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgba(x * 5 % 256, y * 7 % 256, 90, 255));
    return image;
}

QStringList names(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

int dotsPerInch(const QImage& image)
{
    return int(std::lround(image.dotsPerMeterX() * 0.0254));
}

} // namespace

TEST(FilesTest, numbersFilesOfTheSameSecondInAFolderThatItMakes)
{
    const QTemporaryDir root;
    const QString folder = root.filePath(u"Büro/中文/Shots"_s);
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(Files::save("bytes", folder, u"png"_s, u"Screenshot"_s, afternoon));
    EXPECT_THAT(names(folder),
        testing::ElementsAre(u"Screenshot 2025-03-07 at 14.05.09 (2).png"_s,
            u"Screenshot 2025-03-07 at 14.05.09 (3).png"_s,
            u"Screenshot 2025-03-07 at 14.05.09.png"_s));
    EXPECT_TRUE(
        Files::nextURL(folder, u"jpg"_s, u"Screenshot"_s, afternoon).endsWith(u"14.05.09.jpg"_s));
}

TEST(FilesTest, countsALinkThatLeadsNowhereAsATakenName)
{
    const QTemporaryDir root;
    const QString taken = Files::nextURL(root.path(), u"png"_s, u"Screenshot"_s, afternoon);
    ASSERT_TRUE(QFile::link(root.filePath(u"nowhere"_s), taken));
    const auto path = Files::save("bytes", root.path(), u"png"_s, u"Screenshot"_s, afternoon);
    ASSERT_TRUE(path);
    EXPECT_TRUE(path->endsWith(u"14.05.09 (2).png"_s)) << qPrintable(*path);
    EXPECT_TRUE(QFileInfo(taken).isSymLink());
    EXPECT_FALSE(QFile::exists(root.filePath(u"nowhere"_s)));
}

TEST(FilesTest, neverReplacesWhatAnotherProcessSavesMeanwhile)
{
    const QTemporaryDir root;
    constexpr int processes = 4, each = 15;
    for (int i = 0; i < processes; ++i)
        if (fork() == 0) {
            bool good = true;
            for (int k = 0; k < each; ++k)
                good &= bool(Files::save(QByteArray::number(i * each + k), root.path(), u"png"_s,
                    u"Screenshot"_s, afternoon));
            _exit(good ? 0 : 1);
        }
    for (int i = 0, status = 0; i < processes; ++i) {
        ASSERT_GT(wait(&status), 0);
        EXPECT_EQ(status, 0);
    }
    QSet<QByteArray> contents;
    for (const auto& name : names(root.path())) {
        contents.insert(contentOf(root.filePath(name)));
    }
    EXPECT_EQ(contents.size(), processes * each);
}

TEST(FilesTest, encodesByExtensionWithTheResolution)
{
    const QTemporaryDir root;
    const QImage image = gradient({300, 200});
    struct Case {
        QString name;
        QByteArray format;
    };
    for (const auto& [name, format] : {Case {u"a.png"_s, "png"}, Case {u"b.JPG"_s, "jpeg"},
             Case {u"c.jpeg"_s, "jpeg"}, Case {u"d.tiff"_s, "png"}, Case {u"e"_s, "png"}}) {
        ASSERT_TRUE(Files::write(image, root.filePath(name), 2));
        const QImage back = QImage::fromData(contentOf(root.filePath(name)), format.constData());
        EXPECT_EQ(back.size(), image.size()) << qPrintable(name);
        EXPECT_EQ(dotsPerInch(back), 144) << qPrintable(name);
        const bool lossless = format == "png";
        EXPECT_EQ(back.convertToFormat(QImage::Format_RGB32) == image, lossless);
    }
    const auto nothing = Files::write(QImage(), root.filePath(u"x.png"_s), 1);
    ASSERT_FALSE(nothing);
    EXPECT_EQ(nothing.error().message, u"Couldn't encode the image."_s);
    EXPECT_FALSE(QFile::exists(root.filePath(u"x.png"_s)));
    const QImage tooWide(65536, 1, QImage::Format_RGB32); // For JPEG.
    const auto refused = Files::encode(tooWide, ImageType::Jpeg, 1);
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().message, nothing.error().message);
}

TEST(FilesTest, keepsTransparencyInPngAndPutsWhiteBehindItInJpeg)
{
    QImage image = gradient({40, 30}, QImage::Format_ARGB32);
    image.setPixel(3, 4, qRgba(200, 100, 50, 128));
    for (int y = 10; y < 30; ++y)
        for (int x = 10; x < 40; ++x)
            image.setPixel(x, y, 0);
    const auto png = Files::encode(image, ImageType::Png, 1);
    ASSERT_TRUE(png);
    const QImage back = QImage::fromData(*png, "png").convertToFormat(QImage::Format_ARGB32);
    EXPECT_EQ(back.convertToFormat(QImage::Format_ARGB32_Premultiplied),
        image.convertToFormat(QImage::Format_ARGB32_Premultiplied));

    image.setDevicePixelRatio(2); // Changes nothing about the pixels.
    const auto jpeg = Files::encode(image, ImageType::Jpeg, 1);
    ASSERT_TRUE(jpeg);
    const QColor behind = QImage::fromData(*jpeg, "jpeg").pixelColor(30, 25);
    EXPECT_GT(behind.red() + behind.green() + behind.blue(), 3 * 250);
}

TEST(FilesTest, copiesAtTheSizeOnScreenWithoutCopyingPixels)
{
    FakeClipboard clipboard;
    QImage image = gradient({288, 180});
    const QImage expected = image.copy();
    Files::copy(clipboard, image, 2, "png");
    EXPECT_EQ(clipboard.image.deviceIndependentSize(), QSizeF(144, 90));
    EXPECT_EQ(clipboard.image.constBits(), image.constBits());
    image = QImage();
    clipboard.image.setDevicePixelRatio(1);
    EXPECT_EQ(clipboard.image, expected) << "gone with the original";
}

TEST(FilesTest, saysWhyItCannotSave)
{
    const QTemporaryDir root;
    const QString occupied = root.filePath(u"file"_s);
    put(occupied, {});
    const auto inFile = Files::save("bytes", occupied, u"png"_s, u"Screenshot"_s, afternoon);
    ASSERT_FALSE(inFile);
    EXPECT_TRUE(inFile.error().message.contains(occupied)) << inFile.error().message.toStdString();
}

TEST(FilesTest, saysThatAFolderTakesNoFilesAndLeavesThoseInIt)
{
    const QTemporaryDir root;
    const QString folder = root.filePath(u"shots"_s), old = folder + u"/old.png"_s;
    ASSERT_TRUE(QDir().mkdir(folder));
    const bool isRoot = geteuid() == 0; // Whom no permission keeps from writing.
    if (isRoot && mount("none", qPrintable(folder), "tmpfs", 0, "size=64k") != 0)
        GTEST_SKIP() << "a folder that root cannot write is a mounted one, and mounting is refused";
    const auto open = qScopeGuard([&] {
        chmod(qPrintable(folder), 0755);
        if (isRoot)
            umount(qPrintable(folder));
    });
    ASSERT_TRUE(Files::write(gradient({9, 9}), old, 1));
    ASSERT_EQ(isRoot ? mount("none", qPrintable(folder), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr)
                     : chmod(qPrintable(folder), 0555),
        0);
    const QString reason = isRoot ? u"Read-only file system."_s : u"Permission denied."_s;
    const auto fresh = Files::save("bytes", folder, u"png"_s, u"Screenshot"_s, afternoon);
    ASSERT_FALSE(fresh);
    EXPECT_EQ(fresh.error().message,
        u"Couldn't write “%1/Screenshot 2025-03-07 at 14.05.09.png”: %2"_s.arg(folder, reason));
    const auto below
        = Files::save("bytes", folder + u"/new"_s, u"png"_s, u"Screenshot"_s, afternoon);
    ASSERT_FALSE(below);
    EXPECT_TRUE(
        below.error().message.endsWith(u"the folder “%1/new” does not exist."_s.arg(folder)))
        << qPrintable(below.error().message);
    EXPECT_FALSE(Files::write(gradient({20, 20}), old, 1));
    EXPECT_EQ(QImage(old).convertToFormat(QImage::Format_RGB32), gradient({9, 9}));
    EXPECT_THAT(names(folder), testing::ElementsAre(u"old.png"_s));
}

TEST(FilesTest, keepsTemporaryFilesToTheUserAndCleansThem)
{
    const QTemporaryDir root;
    Folders folders;
    folders.cache = root.filePath(u"cache"_s);
    const QImage image = gradient({20, 20});
    const auto path = Files::tempPNG(image, 2, folders, afternoon);
    ASSERT_TRUE(path);
    EXPECT_TRUE(path->endsWith(u"/Screenshot 2025-03-07 at 14.05.09.png"_s));
    EXPECT_EQ(QImage(*path).convertToFormat(QImage::Format_RGB32), image);
    constexpr QFile::Permissions others(0x77); // Group and everybody.
    for (const auto& each : {*path, QFileInfo(*path).path()})
        EXPECT_EQ(QFileInfo(each).permissions() & others, QFile::Permissions()) << qPrintable(each);
    EXPECT_EQ(Files::tempPNG(image, 2, folders, afternoon), path) << "replaced, not numbered";
    Files::cleanTemporaries(folders);
    EXPECT_FALSE(QFile::exists(*path));
    EXPECT_FALSE(Files::tempPNG(QImage(), 2, folders, afternoon));
}
