// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/DesktopOf.h"
#include "bench/Limit.h"
#include "bench/Program.h"
#include "bench/Rounds.h"
#include "bench/ScreenContent.h"

#include <QFileInfo>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/// A command that writes a picture of the whole desktop to a file, measured as a whole process.
struct Command {
    QString name;
    QStringList words;
    QString file;
    double peak = 0; ///< MiB, the highest of all runs.
};

constexpr Limit partOfPeer {0.20, 0.12}; // Of its wall time and of its processor time.
constexpr Limit mebibytes {50, 15};

Result<Rounds::Sample> runOnce(const VirtualDesktop& desktop, Command& command)
{
    const auto run = desktop.run(u"measured-run"_s, command.words);
    if (!run)
        return run.error();
    const auto figures = run->output.simplified().split(' ');
    if (run->exitCode != 0 || figures.size() != 3)
        return Error::failed(u"%1 ended with %2: %3"_s.arg(command.name)
                                 .arg(run->exitCode)
                                 .arg(QString::fromLocal8Bit(run->errors)));
    command.peak = std::max(command.peak, figures[2].toDouble() / 1024);
    return Rounds::Sample {figures[1].toDouble() / 1000, figures[0].toDouble() / 1000};
}

bool shows(const Command& command, const QImage& picture)
{
    return QImage(command.file).convertToFormat(QImage::Format_RGB32) == picture;
}

void print(const Rounds& rounds, const Command& command)
{
    std::printf("%-10s %9.2f %9.2f %9.2f %9.2f %7.1f %10lld\n", qPrintable(command.name),
        rounds.medianWall(command.name), rounds.wall95(command.name),
        rounds.medianCpu(command.name), rounds.cpu95(command.name), command.peak,
        static_cast<long long>(QFileInfo(command.file).size()));
}

int measure(const VirtualDesktop& desktop, const QImage& picture, int roundCount)
{
    const QString ourFile = desktop.home() + u"/ours.png"_s;
    const QString theirFile = desktop.home() + u"/theirs.png"_s;
    Command ours {u"pixmallow"_s, {u"pixmallow"_s, u"shot"_s, u"--output"_s, ourFile}, ourFile};
    Command theirs {u"scrot"_s, {u"scrot"_s, u"-o"_s, theirFile}, theirFile};

    std::optional<Error> failure;
    Rounds rounds;
    for (auto* const command : {&ours, &theirs})
        rounds.addMeasured(command->name, [&desktop, &failure, command] {
            const auto sample = failure ? *failure : runOnce(desktop, *command);
            if (!sample)
                failure = sample.error();
            return sample ? *sample : Rounds::Sample {};
        });
    rounds.run(roundCount);
    if (failure)
        return Program::fail(failure->message);
    for (const auto& command : {ours, theirs})
        if (!shows(command, picture))
            return Program::fail(u"%1 did not write the pixels of the screen."_s.arg(command.name));

    std::printf("%-10s %9s %9s %9s %9s %7s %10s\n", "", "wall ms", "p95 ms", "cpu ms", "p95 ms",
        "MiB", "bytes");
    print(rounds, ours);
    print(rounds, theirs);
    std::printf("%s / %s, median of pairs: wall %s, cpu %s; MiB %s\n", qPrintable(ours.name),
        qPrintable(theirs.name),
        qPrintable(judged(rounds.wallRatio(ours.name, theirs.name), partOfPeer)),
        qPrintable(judged(rounds.ratio(ours.name, theirs.name), partOfPeer)),
        qPrintable(judged(ours.peak, mebibytes)));
    return 0;
}

} // namespace

// Whole processes in turn that save a 3840 × 2160 desktop. usage: ShotBench [ROUNDS]
int main(int argc, char** argv)
{
    const Program program(argc, argv);
    const QImage picture = drawScreen(ScreenContent::Desk, {3840, 2160});
    const auto desktop = desktopOf(picture);
    if (!desktop)
        return Program::fail(desktop.error().message);
    return measure(**desktop, picture, Program::number(1, 11));
}
