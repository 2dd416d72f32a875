// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/Limit.h"
#include "bench/Program.h"
#include "bench/Rounds.h"
#include "bench/ScreenContent.h"
#include "platform/freedesktop/ModuleFaceDetector.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr Limit atFourK {500, 350}; // Milliseconds, off the main thread.

int look(FaceDetector& detector, const QImage& picture)
{
    const auto faces = detector.detect(picture);
    return faces ? int(faces->size()) : Program::fail(faces.error().message);
}

} // namespace

// usage: FacesBench [ROUNDS [PICTURE...]]; without pictures, screens that are drawn.
int main(int argc, char** argv)
{
    const Program program(argc, argv);
    ModuleFaceDetector detector;
    QImage small(64, 64, QImage::Format_RGB32);
    small.fill(Qt::white);
    QElapsedTimer loading;
    loading.start();
    look(detector, small);
    std::printf("first use, module loaded: %lld ms\n", static_cast<long long>(loading.elapsed()));

    std::vector<std::pair<QString, QImage>> pictures;
    for (const auto& path : Program::words(2))
        pictures.emplace_back(path, QImage(path));
    if (pictures.empty())
        for (const auto content : allScreenContents)
            pictures.emplace_back(
                nameOf(content) + u" 3840x2160"_s, drawScreen(content, {3840, 2160}));
    Rounds rounds;
    for (const auto& [name, picture] : pictures)
        rounds.add(name, [&, picture = picture] { look(detector, picture); });
    rounds.run(Program::number(1, 7));
    std::printf("%-24s %7s %9s %9s\n", "", "faces", "cpu ms", "wall ms");
    for (const auto& [name, picture] : pictures)
        std::printf("%-24s %7d %9.0f %9.0f  %s\n", qPrintable(name), look(detector, picture),
            rounds.medianCpu(name), rounds.medianWall(name),
            qPrintable(judged(rounds.medianCpu(name), atFourK)));
    return 0;
}
