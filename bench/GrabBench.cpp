// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Bitmap.h"
#include "bench/DesktopOf.h"
#include "bench/Limit.h"
#include "bench/Program.h"
#include "bench/Rounds.h"
#include "bench/ScreenContent.h"
#include "platform/Platform.h"

#include <cstdio>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

const QString copy = u"memcpy"_s; // Of the whole picture, into memory that is there already.
const QString grab = u"grab"_s; // Of the whole desktop, into memory of its own.

constexpr Limit timesCopy {2.0, 1.3};

Result<Bitmap> grabbed(ScreenCapture& capture, QSize size)
{
    const auto frozen = capture.area({{}, size}, {}, Pointer::Hidden).wait();
    if (!frozen)
        return frozen.error();
    return Bitmap::read(**frozen);
}

bool isSame(const Bitmap& bitmap, const QImage& picture)
{
    if (bitmap.size() != picture.size())
        return false;
    const QImage image(reinterpret_cast<const uchar*>(bitmap.row(0)), picture.width(),
        picture.height(), QImage::Format_RGB32);
    return image == picture;
}

int measure(ScreenCapture& capture, const QImage& picture, int roundCount)
{
    const auto bytes = std::size_t(picture.sizeInBytes());
    Bitmap destination(picture.size(), PixelFormat::Rgb32);
    std::optional<Error> failure;
    Rounds rounds;
    rounds.add(copy, [&] { std::memcpy(destination.row(0), picture.constBits(), bytes); });
    rounds.add(grab, [&] {
        if (const auto bitmap = grabbed(capture, picture.size()); !bitmap)
            failure = bitmap.error();
    });
    rounds.run(roundCount);
    const auto last = grabbed(capture, picture.size());
    if (failure || !last)
        return Program::fail(failure ? failure->message : last.error().message);
    if (!isSame(*last, picture))
        return Program::fail(u"The pixels are not those on the screen."_s);

    std::printf("%-7s %9s %9s %9s %9s  %s\n", "", "cpu ms", "p95 ms", "wall ms", "p95 ms",
        "x memcpy, cpu of this process");
    for (const QString& name : {copy, grab})
        std::printf("%-7s %9.2f %9.2f %9.2f %9.2f  %s\n", qPrintable(name), rounds.medianCpu(name),
            rounds.cpu95(name), rounds.medianWall(name), rounds.wall95(name),
            name == copy ? "" : qPrintable(judged(rounds.ratio(name, copy), timesCopy)));
    return 0;
}

} // namespace

// What the resident program pays for a picture of a 3840 × 2160 desktop. usage: GrabBench [ROUNDS]
int main(int argc, char** argv)
{
    const Program program(argc, argv);
    const QImage picture = drawScreen(ScreenContent::Desk, {3840, 2160});
    const auto desktop = desktopOf(picture);
    if (!desktop)
        return Program::fail(desktop.error().message);
    (*desktop)->enter();
    const auto platform = makeCapturePlatform(Residency::Resident);
    if (!platform)
        return Program::fail(platform.error().message);
    return measure(*platform->capture, picture, Program::number(1, 25));
}
