// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/Soak.h"
#include "tests/editor/keeping/SampleEdits.h"

#include "capture/Files.h"

#include <gtest/gtest.h>

#include <QtEndian>

#include <set>

#include <xxhash.h>

using namespace Qt::StringLiterals;

namespace {

EditRecord record(unsigned seed)
{
    EditRecord record {
        PixelHash {seed, ~quint64(seed)}, 1'700'000'000'123, SampleEdits::edit(seed)};
    record.edit.capture.historyId = u"0F3F6B3A-0000-4000-8000-000000000001"_s;
    record.edit.capture.shot.image = {};
    return record;
}

/// As whoever wrote the bytes would have done.
QByteArray withChecksum(QByteArray bytes)
{
    const qsizetype end = bytes.size() - 8;
    qToLittleEndian(quint64(XXH3_64bits(bytes.constData(), std::size_t(end))), bytes.data() + end);
    return bytes;
}

/// One that is damaged a little or a lot.
QByteArray mutated(QByteArray bytes, std::mt19937& random)
{
    const auto at = [&] { return qsizetype(random() % std::size_t(bytes.size())); };
    for (int changes = 1 + int(random() % 4); changes > 0 && !bytes.isEmpty(); --changes)
        switch (random() % 5) {
        case 0:
            bytes[at()] = char(random());
            break;
        case 1:
            bytes.remove(at(), int(random() % 20));
            break;
        case 2:
            bytes.insert(at(), QByteArray(int(random() % 20), char(random())));
            break;
        case 3: // Where lengths are, the worst.
            bytes.replace(at(), 4, QByteArray::fromHex(random() % 2 ? "ffffffff" : "ffffff7f"));
            break;
        default:
            bytes.truncate(at());
        }
    return bytes;
}

} // namespace

TEST(EditRecordTest, bringsEveryFieldBack)
{
    for (unsigned seed = 0; seed < 40; ++seed) {
        const EditRecord written = record(seed);
        const auto read = EditRecord::decoded(written.encoded());
        ASSERT_TRUE(read) << read.error().message.toStdString();
        EXPECT_EQ(read->base, written.base);
        EXPECT_EQ(read->time, written.time);
        EXPECT_EQ(read->edit.capture.shot.scale, 1.5);
        EXPECT_EQ(read->edit.capture.shot.app, written.edit.capture.shot.app);
        EXPECT_EQ(read->edit.capture.path, written.edit.capture.path);
        EXPECT_EQ(read->edit.capture.historyId, written.edit.capture.historyId);
        EXPECT_TRUE(SampleEdits::areEqual(read->edit.annotations, written.edit.annotations));
    }
}

TEST(EditRecordTest, refusesWhatIsTornDamagedOrNewer)
{
    const QByteArray whole = record(5).encoded();
    for (qsizetype size = 0; size < whole.size(); size += 7)
        EXPECT_FALSE(EditRecord::decoded(whole.first(size)));
    for (qsizetype at = 0; at < whole.size(); at += 5) {
        QByteArray flipped = whole;
        flipped[at] = char(flipped[at] ^ 0x10);
        EXPECT_FALSE(EditRecord::decoded(flipped)) << at;
    }
    QByteArray newer = whole;
    newer[4] = 2;
    const auto read = EditRecord::decoded(withChecksum(newer));
    ASSERT_FALSE(read);
    EXPECT_TRUE(read.error().message.contains(u"newer"_s));
}

TEST(EditRecordTest, survivesWhateverItIsGiven)
{
    std::mt19937 random(11);
    int readable = 0;
    for (int round = 0; round < soaked(4000); ++round) {
        QByteArray bytes = mutated(record(unsigned(round) % 20).encoded(), random);
        if (bytes.size() >= 8)
            bytes = withChecksum(bytes);
        const auto read = EditRecord::decoded(bytes);
        if (!read)
            continue;
        ++readable;
        EXPECT_EQ(EditRecord::decoded(read->encoded())->encoded(), read->encoded());
        CanvasDocument document(QImage(32, 32, QImage::Format_RGB32));
        document.adopt(read->edit.annotations, CanvasDocument::Adopted::Saved);
        for (const Mark& mark : document.annotations())
            EXPECT_LT(mark->bounds().width(), 1e9);
    }
    EXPECT_GT(readable, 100) << "changes of colours and numbers stay readable";
}

TEST(PixelHashTest, isThatOfThePixelsHoweverTheyAreStored)
{
    std::set<QString> seen;
    for (const auto format : {QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied})
        for (unsigned seed = 0; seed < 20; ++seed) {
            const QImage image = SampleEdits::picture(seed, {241, 160}, format);
            const PixelHash hash = PixelHash::of(image);
            EXPECT_TRUE(seen.insert(hash.text()).second);
            EXPECT_EQ(PixelHash::fromText(hash.text()), hash);
            const auto png = Files::encode(image, ImageType::Png, 2);
            ASSERT_TRUE(png);
            const QImage read = QImage::fromData(*png);
            EXPECT_EQ(PixelHash::of(read), hash);
            EXPECT_EQ(PixelHash::of(image.copy().convertToFormat(QImage::Format_ARGB32)), hash);
            QImage other = image.copy();
            other.setPixel(240, 159, other.pixel(240, 159) ^ 1);
            EXPECT_NE(PixelHash::of(other), hash);
        }
    EXPECT_FALSE(PixelHash::fromText(u"+000000000000000000000000000000f"_s));
    EXPECT_FALSE(PixelHash::fromText(u"00"_s));
}

TEST(PixelHashTest, survivesAPngForEveryColourAndAlpha)
{
    QImage image(256, 256, QImage::Format_ARGB32_Premultiplied);
    for (int alpha = 0; alpha < 256; ++alpha)
        for (int colour = 0; colour < 256;
             ++colour) // Some brighter than premultiplied ones can be.
            image.setPixel(colour, alpha, qRgba(colour, colour / 2, 0, alpha));
    const auto png = Files::encode(image, ImageType::Png, 1);
    ASSERT_TRUE(png);
    EXPECT_EQ(PixelHash::of(QImage::fromData(*png)), PixelHash::of(image));
}
