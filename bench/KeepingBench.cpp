// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/Limit.h"
#include "bench/Program.h"
#include "bench/Rounds.h"
#include "bench/ScreenContent.h"
#include "editor/keeping/KeptEdits.h"

#include <QTemporaryDir>

#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr QSize screen(3840, 2160);
constexpr int annotations = 200;

std::vector<Annotation> strokes()
{
    std::vector<Annotation> all;
    for (int at = 0; at < annotations; ++at) {
        Annotation it(Tool::Pen, Qt::red, 4);
        for (int step = 0; step < 200; ++step)
            it.points.append(QPointF(at * 15 + step * 1.7, at * 8 + step * 0.3));
        all.push_back(it);
    }
    return all;
}

double threadMilliseconds()
{
    timespec time {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

/// Of the calling thread alone.
Rounds::Sample measured(const std::function<void()>& work)
{
    const double before = threadMilliseconds();
    work();
    const double taken = threadMilliseconds() - before;
    return {taken, taken};
}

} // namespace

// usage: KeepingBench [ROUNDS [FOLDER]]; a folder in memory leaves the disk's flush out.
int main(int argc, char** argv)
{
    const Program program(argc, argv);
    const QTemporaryDir root(Program::words(2).value(0, u"/dev/shm"_s) + u"/pixmallow-XXXXXX"_s);
    const Folders folders {.configuration = root.filePath(u"config"_s),
        .data = root.filePath(u"data"_s),
        .cache = root.filePath(u"cache"_s)};
    Prefs prefs(folders, Prefs::Watch::Nothing);
    prefs.registerDefaults();
    HistoryStore history(folders, prefs);
    KeptEdits kept(folders, prefs, history);

    const QImage image = drawScreen(ScreenContent::Desk, screen);
    CanvasDocument document(image);
    document.add(strokes());
    document.commit(strokes().front()); // Selected.
    const FinishedCapture capture {{image, 1, {}, {}}, {}, newHistoryId()};
    const auto journal = kept.journal(capture);
    journal->note(document);
    kept.flush();

    const QString note = u"note, main thread"_s, write = u"note, until it is written"_s,
                  crop = u"crop, until it is written"_s, hash = u"hash"_s,
                  store = u"layers of an export"_s;
    Rounds rounds;
    rounds.addMeasured(note, [&] {
        const auto sample = measured([&] {
            document.editSelected([](Annotation& it) { it.move(1, 1); });
            journal->note(document);
        });
        kept.flush();
        return sample;
    });
    rounds.add(write, [&] {
        journal->note(document);
        kept.flush();
    });
    rounds.add(crop, [&] {
        document.crop(QRectF(0, 0, screen.width(), document.base().height() - 1));
        journal->note(document);
        kept.flush();
        document.undo();
    });
    rounds.add(hash, [&] { PixelHash::of(image); });
    rounds.add(store, [&] {
        journal->exported(document, image);
        kept.flush();
    });
    rounds.run(Program::number(1, 15));
    std::printf("%d strokes on %d x %d\n%-28s %9s %9s\n", annotations, screen.width(),
        screen.height(), "", "cpu ms", "wall ms");
    for (const auto& name : {note, write, crop, hash, store})
        std::printf("%-28s %9.2f %9.2f  %s\n", qPrintable(name), rounds.medianCpu(name),
            rounds.medianWall(name),
            name == note ? qPrintable(judged(rounds.cpu95(name), {2, 0.5})) : "");
    return 0;
}
