// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/PngWriter.h"

#include "base/PngEngine.h"
#include "tests/Soak.h"

#include <QImage>

#include <gtest/gtest.h>
#include <zlib.h>

#include <cmath>
#include <cstring>
#include <random>

namespace {

using Bytes = std::vector<std::uint8_t>;
using Pixel = std::uint32_t;

struct Picture {
    Picture(QSize dimensions, PixelFormat pixelFormat, std::function<Pixel(int x, int y)> pixelAt)
        : size(dimensions)
        , format(pixelFormat)
    {
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                pixels.push_back(pixelAt(x, y));
    }

    QSize size;
    PixelFormat format;
    std::vector<Pixel> pixels;
};

// Hands out few rows at a time from one buffer that the next fetch overwrites, and fails when told.
class MeagreRows final : public RowSource {
public:
    MeagreRows(const Picture& picture, int most)
        : m_picture(picture)
        , m_most(most)
    {
    }

    QSize size() const override { return m_picture.size; }
    PixelFormat format() const override { return m_picture.format; }
    Result<Rows> rows(int y, int most) override
    {
        if (++fetches == failingFetch)
            return Error::failed(QStringLiteral("it is gone"));
        const int width = size().width();
        const int count = std::min({most, m_most, size().height() - y});
        EXPECT_GE(count, 1);
        m_buffer.assign(
            std::size_t(std::min(m_most, size().height())) * std::size_t(width + 3), 0xdeadbeef);
        for (int i = 0; i < count; ++i)
            std::memcpy(&m_buffer[std::size_t(i) * std::size_t(width + 3)],
                &m_picture.pixels[std::size_t(y + i) * std::size_t(width)], std::size_t(width) * 4);
        rowsRead += count;
        return Rows {m_buffer.data(), width + 3, width, count};
    }

    int fetches = 0;
    int failingFetch = 0;
    int rowsRead = 0;

private:
    const Picture& m_picture;
    int m_most;
    std::vector<Pixel> m_buffer;
};

struct Written {
    Bytes file;
    int rowsRead = 0;
};

Written write(
    const Picture& picture, const PngEngine& engine, int mostRows = 1 << 20, double scale = 1)
{
    Written written;
    MeagreRows source(picture, mostRows);
    const auto done = writePng(
        source, scale,
        [&](std::span<const std::uint8_t> bytes) -> Result<void> {
            EXPECT_LE(bytes.size(), 257u * 1024);
            written.file.insert(written.file.end(), bytes.begin(), bytes.end());
            return {};
        },
        engine);
    EXPECT_TRUE(done);
    written.rowsRead = source.rowsRead;
    return written;
}

Pixel bigEndian(const std::uint8_t* bytes)
{
    return Pixel(bytes[0]) << 24 | Pixel(bytes[1]) << 16 | Pixel(bytes[2]) << 8 | bytes[3];
}

// Stricter than QImage, which forgives wrong check sums at the end and bytes behind it.
void expectSoundChunks(const Bytes& file)
{
    Bytes stream;
    std::string types;
    std::size_t at = 8;
    while (at + 12 <= file.size()) {
        const Pixel length = bigEndian(&file[at]);
        ASSERT_LE(at + 12 + length, file.size());
        const auto type = std::string(file.begin() + long(at) + 4, file.begin() + long(at) + 8);
        EXPECT_EQ(bigEndian(&file[at + 8 + length]), crc32_z(0, &file[at + 4], length + 4)) << type;
        if (type == "IDAT")
            stream.insert(stream.end(), &file[at + 8], &file[at + 8] + length);
        if (type != "IDAT" || !types.ends_with("IDAT"))
            types += type;
        at += 12 + length;
    }
    EXPECT_EQ(at, file.size());
    EXPECT_TRUE(types == "IHDRpHYsIDATIEND" || types == "IHDRpHYsPLTEIDATIEND"
        || types == "IHDRpHYsPLTEtRNSIDATIEND")
        << types;

    const std::size_t channels = file[25] == 2 ? 3 : file[25] == 6 ? 4 : 1;
    const std::size_t expected = bigEndian(&file[20]) * (1 + bigEndian(&file[16]) * channels);
    Bytes raw(expected + 1);
    uLongf rawSize = raw.size();
    uLong streamSize = stream.size();
    EXPECT_EQ(uncompress2(raw.data(), &rawSize, stream.data(), &streamSize), Z_OK);
    EXPECT_EQ(rawSize, expected);
    EXPECT_EQ(streamSize, stream.size());
}

void expectSamePicture(const Picture& picture, const Bytes& file)
{
    ASSERT_NO_FATAL_FAILURE(expectSoundChunks(file));
    const auto image = QImage::fromData(file.data(), int(file.size()), "png");
    ASSERT_EQ(image.size(), picture.size);
    const auto read = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < read.height(); ++y) {
        const auto* line = reinterpret_cast<const Pixel*>(read.constScanLine(y));
        for (int x = 0; x < read.width(); ++x) {
            const Pixel pixel
                = picture.pixels[std::size_t(y) * std::size_t(read.width()) + std::size_t(x)];
            const Pixel expected
                = picture.format == PixelFormat::Rgb32 ? pixel | 0xff000000 : qUnpremultiply(pixel);
            ASSERT_EQ(line[x], expected)
                << std::hex << pixel << std::dec << " at " << x << "," << y;
        }
    }
}

std::vector<PngEngine> engines()
{
    const PngEngine fastest = PngEngine::fastest();
    const PngEngine portable = PngEngine::portable();
    return {fastest, portable, {fastest.compression, portable.rows}};
}

// Pixels that change from one to the next, so that a wrong place or a wrong row shows.
Pixel busy(int x, int y)
{
    return Pixel(x) * 2654435761u ^ Pixel(y) * 2246822519u;
}

Pixel opaqueBusy(int x, int y)
{
    return busy(x, y) | 0xff000000;
}

Pixel glassBusy(int x, int y)
{
    return qPremultiply(busy(x, y));
}

Pixel few(int x, int y)
{
    return 0x7f123456 + Pixel(x / 3 * 7 + y) % 5;
}

Pixel fewGlass(int x, int y)
{
    return qPremultiply(Pixel(0x40302010) * (1 + Pixel(x / 9 + y / 2) % 3));
}

Pixel clearWindow(int x, int y) // Mostly opaque, with a transparent border.
{
    return x < 4 || y < 4 ? glassBusy(x, y) : opaqueBusy(x, y);
}

struct Kind {
    const char* name;
    PixelFormat format;
    Pixel (*pixelAt)(int, int);
    int colourType; // When there are enough pixels to tell.
};

constexpr Kind kinds[] {
    {"opaque", PixelFormat::Rgb32, busy, 2},
    {"few colours", PixelFormat::Rgb32, few, 3},
    {"opaque with an alpha", PixelFormat::Argb32Premultiplied, opaqueBusy, 2},
    {"transparent", PixelFormat::Argb32Premultiplied, glassBusy, 6},
    {"transparent border", PixelFormat::Argb32Premultiplied, clearWindow, 6},
    {"few transparent colours", PixelFormat::Argb32Premultiplied, fewGlass, 3},
};

} // namespace

TEST(PngWriter, readsBackTheSameWithEveryColourTypeSizeAndEngine)
{
    const QSize sizes[] {{1, 1}, {1, 700}, {2, 3}, {15, 33}, {16, 64}, {17, 65}, {333, 257},
        {1000, 700}, {65535, 3}, {3, 9000}};
    for (const auto& kind : kinds) {
        for (const auto size : sizes) {
            const Picture picture(size, kind.format, kind.pixelAt);
            for (const auto& engine : engines()) {
                for (const int mostRows : {1 << 20, 1, 7}) {
                    SCOPED_TRACE(testing::Message() << kind.name << " " << size.width() << "x"
                                                    << size.height() << " by " << mostRows);
                    const auto file = write(picture, engine, mostRows).file;
                    ASSERT_NO_FATAL_FAILURE(expectSamePicture(picture, file));
                    if (picture.pixels.size() > 10000) {
                        EXPECT_EQ(file[25], kind.colourType);
                    }
                }
            }
        }
    }
}

TEST(PngWriter, unpremultipliesEveryColourToTheNearest)
{
    const Picture picture({256, 256}, PixelFormat::Argb32Premultiplied, [](int colour, int alpha) {
        return Pixel(alpha) << 24 | Pixel(std::min(colour, alpha)) * 0x10101;
    });
    for (const auto& engine : engines())
        expectSamePicture(picture, write(picture, engine).file);

    // Brighter than its alpha allows, which some programs draw, is as bright as can be.
    const Picture tooBright(
        {1, 1}, PixelFormat::Argb32Premultiplied, [](int, int) { return 0x80ff4090; });
    const auto file = write(tooBright, PngEngine::fastest()).file;
    EXPECT_EQ(QImage::fromData(file.data(), int(file.size())).pixel(0, 0), 0x80ff80ffu);
}

TEST(PngWriter, takesAPaletteForUpTo256ColoursWhereverTheLastOneStands)
{
    for (const int colours : {2, 256, 257}) {
        Picture picture({64, 900}, PixelFormat::Rgb32,
            [&](int x, int y) { return Pixel(y * 64 + x) % 200 % Pixel(colours); });
        // The whole range stands only in rows that a sample of the picture misses.
        for (int i = 0; i < colours; ++i)
            picture.pixels[100 * 64 + std::size_t(i)] = Pixel(i);
        const auto file = write(picture, PngEngine::fastest()).file;
        EXPECT_EQ(file[25], colours <= 256 ? 3 : 2) << colours;
        expectSamePicture(picture, file);
    }

    // Too large, compressed, to be kept until the palette is known.
    std::mt19937 random(1);
    const Picture noise({2200, 2200}, PixelFormat::Rgb32, [&](int, int) { return random() % 256; });
    const auto file = write(noise, PngEngine::fastest()).file;
    EXPECT_EQ(file[25], 3);
    expectSamePicture(noise, file);
}

TEST(PngWriter, choosesTheFilterThatSuitsThePicture)
{
    // Each row is the one above, a little brighter: only the differences compress.
    const Picture shaded({1000, 700}, PixelFormat::Rgb32,
        [](int x, int y) { return busy(x, 0) + Pixel(y) * 0x10101; });
    // Nine rows in any order: they compress as they are, their many differences do not.
    std::mt19937 random(1);
    int line = 0;
    const Picture repeating({300, 700}, PixelFormat::Rgb32, [&](int x, int) {
        line = x == 0 ? int(random() % 9) : line;
        return busy(x, line);
    });
    for (const auto& engine : engines()) {
        EXPECT_LT(write(shaded, engine).file.size(), 100'000u);
        EXPECT_LT(write(repeating, engine).file.size(), 150'000u);
    }
}

TEST(PngWriter, readsLittleMoreThanThePictureOnceWhenItsColoursAreFewOrShowEarly)
{
    for (const auto pixelAt : {busy, glassBusy, few, fewGlass}) {
        const bool opaque = pixelAt == busy || pixelAt == few;
        const Picture picture(
            {300, 2160}, opaque ? PixelFormat::Rgb32 : PixelFormat::Argb32Premultiplied, pixelAt);
        EXPECT_LT(write(picture, PngEngine::fastest(), 64).rowsRead, 2160 * 5 / 4);
    }
}

TEST(PngWriter, recordsTheResolutionOfTheDisplay)
{
    const Picture picture({2, 2}, PixelFormat::Rgb32, busy);
    for (const double scale : {0.5, 1.0, 1.25, 2.0, 3.0}) {
        const auto file = write(picture, PngEngine::fastest(), 1, scale).file;
        const auto image = QImage::fromData(file.data(), int(file.size()));
        EXPECT_EQ(image.dotsPerMeterX(), std::lround(scale * 72 / 0.0254));
        EXPECT_EQ(image.dotsPerMeterY(), image.dotsPerMeterX());
    }
}

TEST(PngWriter, endsAtOnceWithTheReasonOfASourceOrSinkThatFails)
{
    const auto gone = Error::failed(QStringLiteral("it is gone"));
    for (const auto& kind : kinds) {
        const Picture picture({700, 500}, kind.format, kind.pixelAt);
        for (const bool ofSource : {true, false}) {
            int failing = 1; // Call, in all phases of the work.
            for (bool failed = true; failed; failing += ofSource ? 7 : 1) {
                MeagreRows source(picture, 50);
                source.failingFetch = ofSource ? failing : 0;
                int calls = 0;
                const auto done = writePng(source, 1, [&](auto) -> Result<void> {
                    return ++calls == failing && !ofSource ? Result<void>(gone) : Result<void>();
                });
                failed = !done;
                if (failed) {
                    EXPECT_EQ(done.error().message, gone.message);
                    EXPECT_EQ(ofSource ? source.fetches : calls, failing);
                }
            }
            EXPECT_GT(failing, ofSource ? 8 : 4); // Start, data, end.
        }
    }
}

TEST(PngWriter, readsBackRandomPictures)
{
    const int rounds = soaked(60);
    for (int round = 0; round < rounds; ++round) {
        std::mt19937 random(static_cast<unsigned>(round));
        const auto below = [&](int limit) { return int(random() % unsigned(limit)); };
        const auto format = below(2) ? PixelFormat::Rgb32 : PixelFormat::Argb32Premultiplied;
        const QSize size = below(4) ? QSize(1 + below(200), 1 + below(200))
                                    : QSize(1 + below(3000), 1 + below(500));
        const int colours = 1 + below(600);
        const int run = 1 + below(40);
        const int noise = below(3) ? 1000 : 1 + below(100);
        const bool opaque = below(2);
        Pixel pixel = 0;
        const Picture picture(size, format, [&](int x, int y) {
            if (below(run) == 0)
                pixel = busy(below(colours), 0);
            if (below(noise) == 0)
                pixel ^= Pixel(random());
            if (below(noise) == 0)
                pixel = Pixel(x * y);
            return format == PixelFormat::Rgb32 ? pixel
                : opaque                        ? pixel | 0xff000000
                                                : qPremultiply(pixel);
        });
        SCOPED_TRACE(round);
        for (const auto& engine : engines()) {
            const auto file = write(picture, engine, 1 + below(100)).file;
            ASSERT_NO_FATAL_FAILURE(expectSamePicture(picture, file));
        }
    }
}
