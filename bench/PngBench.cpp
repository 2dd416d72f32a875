// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Bitmap.h"
#include "base/PngEngine.h"
#include "base/PngWriter.h"
#include "bench/Limit.h"
#include "bench/Program.h"
#include "bench/Rounds.h"
#include "bench/ScreenContent.h"

#include <QBuffer>

#include <cstdio>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

const QString copy = u"memcpy"_s; // Of the whole picture, into memory that is there already.
const QString qt = u"Qt default"_s;
const QString fastest = u"fastest"_s;
const QString portable = u"portable"_s;

/// What the fastest engine is to reach at 3840 × 2160; 0 for no target.
struct Target {
    double timesCopy;
    double timesFaster; ///< Than Qt.
    double sizeOfQt;
};

Target targetFor(ScreenContent content)
{
    switch (content) {
    case ScreenContent::Desk:
        return {10, 16, 1.15};
    case ScreenContent::Editor:
    case ScreenContent::Term:
        return {4, 20, 1.05};
    case ScreenContent::Photo:
        break;
    }
    return {0, 30, 1.13};
}

qsizetype sizeWritten(const Bitmap& bitmap, const PngEngine& engine)
{
    qsizetype size = 0;
    BitmapRows source(bitmap);
    const auto done = writePng(
        source, 1,
        [&](std::span<const std::uint8_t> bytes) -> Result<void> {
            size += qsizetype(bytes.size());
            return {};
        },
        engine);
    Q_ASSERT(done);
    return size;
}

qsizetype sizeSavedByQt(const QImage& image)
{
    QByteArray file;
    QBuffer buffer(&file);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return file.size();
}

QString judged(double value, double target)
{
    return target > 0 ? ::judged(value, {target, target}) : QString::number(value, 'f', 2);
}

void measure(ScreenContent content, QSize size, int roundCount)
{
    const QImage drawn = drawScreen(content, size);
    const auto bytes = std::size_t(drawn.sizeInBytes());
    Bitmap bitmap(size, PixelFormat::Rgb32); // What captures are held in.
    std::memcpy(bitmap.row(0), drawn.constBits(), bytes);
    const QImage image(reinterpret_cast<const uchar*>(bitmap.row(0)), size.width(), size.height(),
        QImage::Format_RGB32);
    Bitmap destination(size, PixelFormat::Rgb32);
    qsizetype qtSize = 0;
    qsizetype fastestSize = 0;
    qsizetype portableSize = 0;
    Rounds rounds;
    rounds.add(copy, [&] { std::memcpy(destination.row(0), image.constBits(), bytes); });
    rounds.add(qt, [&] { qtSize = sizeSavedByQt(image); });
    rounds.add(fastest, [&] { fastestSize = sizeWritten(bitmap, PngEngine::fastest()); });
    rounds.add(portable, [&] { portableSize = sizeWritten(bitmap, PngEngine::portable()); });
    rounds.run(roundCount);

    std::printf("%-7s %-11s %9s %9s %9s  %-18s %-18s %10s  %s\n", qPrintable(nameOf(content)), "",
        "cpu ms", "p95 ms", "wall ms", "x memcpy", "Qt / this", "bytes", "size / Qt");
    const auto print = [&](const QString& name, qsizetype fileSize, Target target) {
        const double speedUp = rounds.ratio(qt, name);
        QString comparison = QString::number(speedUp, 'f', 1);
        if (target.timesFaster > 0)
            comparison += u" (%1 %2)"_s.arg(speedUp >= target.timesFaster ? u"goal"_s : u"MISSED"_s)
                              .arg(target.timesFaster);
        std::printf("%-7s %-11s %9.2f %9.2f %9.2f  %-18s %-18s %10lld  %s\n", "", qPrintable(name),
            rounds.medianCpu(name), rounds.cpu95(name), rounds.medianWall(name),
            qPrintable(judged(rounds.ratio(name, copy), target.timesCopy)), qPrintable(comparison),
            static_cast<long long>(fileSize),
            qPrintable(judged(double(fileSize) / double(qtSize), target.sizeOfQt)));
    };
    print(copy, image.sizeInBytes(), {});
    print(qt, qtSize, {});
    print(fastest, fastestSize, targetFor(content));
    print(portable, portableSize, {});
    std::fflush(stdout);
}

} // namespace

// usage: PngBench [ROUNDS [WIDTH HEIGHT [KIND...]]]
int main(int argc, char** argv)
{
    const Program program(argc, argv);
    const int rounds = Program::number(1, 9);
    const QSize size(Program::number(2, 3840), Program::number(3, 2160));
    const auto chosen = Program::words(4);
    std::printf("%d x %d, %d rounds\n", size.width(), size.height(), rounds);
    for (const auto content : allScreenContents) {
        if (chosen.isEmpty() || chosen.contains(nameOf(content)))
            measure(content, size, rounds);
    }
    return 0;
}
