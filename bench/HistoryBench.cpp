// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/Program.h"
#include "bench/Rounds.h"
#include "bench/ScreenContent.h"
#include "capture/Files.h"
#include "history/HistoryIndex.h"
#include "history/HistoryStore.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <malloc.h>

#include <cstdio>
#include <memory>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int page = 40; // Cards of the history seen at once.

/// What is to be reached, in milliseconds of all threads together.
struct Target {
    int entries;
    double load;
    double add;
};

Folders foldersIn(const QString& root)
{
    return {.configuration = root + u"/config"_s,
        .data = root + u"/data/Pixmallow"_s,
        .cache = root + u"/cache"_s,
        .pictures = root};
}

void put(const QString& path, const QByteArray& content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qPrintable(path));
}

/// A history of as many entries, every other one of which is a private copy.
void fill(const QString& root, int entries, const QByteArray& content)
{
    const QString folder = foldersIn(root).data + u"/History/"_s;
    const QString pictures = root + u"/Pictures/Pixmallow/"_s;
    QDir().mkpath(folder);
    QDir().mkpath(pictures);
    QList<HistoryItem> items;
    for (int i = 0; i < entries; ++i) {
        const bool isCached = i % 2 == 0;
        const QString id = newHistoryId();
        const QString path = isCached
            ? folder + id + u".png"_s
            : pictures + u"Screenshot 2025-03-07 at 14.05.09 (%1).png"_s.arg(i);
        put(path, content);
        items.append({id, 700000000.125 - i * 1000.5, path, 3840, 2160, 2,
            i % 3 == 0 ? u"Terminal"_s : u"Web Browser"_s, isCached});
    }
    put(folder + u"index.json"_s, HistoryIndex::toJson(items));
}

double heapMebibytes()
{
    const auto heap = mallinfo2();
    return double(heap.uordblks + heap.hblkhd) / 1048576;
}

void print(const Rounds& rounds, const QString& name, double target)
{
    const double cpu = rounds.medianCpu(name);
    const QString judged = target == 0 ? QString()
        : cpu <= target                ? u"<= %1"_s.arg(target)
                                       : u"MISSED %1"_s.arg(target);
    std::printf("%-32s %9.2f %9.2f  %s\n", qPrintable(name), cpu, rounds.medianWall(name),
        qPrintable(judged));
    std::fflush(stdout);
}

void measureStore(const QString& place, const Target& target, const QImage& image, int roundCount)
{
    const QTemporaryDir root(place + u"/pixmallow-bench-XXXXXX"_s);
    fill(root.path(), target.entries, {});
    const Folders folders = foldersIn(root.path());
    Prefs prefs(folders, Prefs::Watch::Nothing);
    prefs.registerDefaults();
    prefs.set(Prefs::keys.historyMax, 1'000'000);
    const QString saved = root.filePath(u"saved.png"_s);
    put(saved, {});
    const auto png = Files::encode(image, ImageType::Png, 2);

    const double before = heapMebibytes();
    HistoryStore store(folders, prefs);
    Q_ASSERT(store.items().size() == target.entries);
    const double taken = heapMebibytes() - before;
    std::vector<std::unique_ptr<HistoryStore>> loaded; // Their ends are not measured.
    const QString count = QLocale::c().toString(target.entries);
    const QString load = count + u" load"_s, add = count + u" add"_s,
                  copy = count + u" add with copy"_s;
    Rounds rounds;
    rounds.add(load, [&] { loaded.push_back(std::make_unique<HistoryStore>(folders, prefs)); });
    rounds.add(add, [&] { store.add(image, 2, saved, u"Terminal"_s); });
    rounds.add(copy, [&] { store.add(image, 2, {}, u"Terminal"_s, *png); });
    rounds.run(roundCount);
    print(rounds, load, target.load);
    print(rounds, add, target.add);
    print(rounds, copy, 0);
    std::printf("%-32s %9.1f\n", qPrintable(count + u" in memory, MiB"_s), taken);
}

/// Asks for all and waits until they are there.
void loadAll(const QString& folder, const QList<HistoryItem>& items)
{
    Thumbnails thumbnails(folder);
    qsizetype arrived = 0;
    QObject::connect(&thumbnails, &Thumbnails::loaded, [&] { ++arrived; });
    for (const auto& item : items)
        thumbnails.thumbnail(item);
    while (arrived < items.size())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void measureThumbnails(const QString& place, const QImage& image, int roundCount)
{
    const QTemporaryDir root(place + u"/pixmallow-bench-XXXXXX"_s);
    const auto png = Files::encode(image, ImageType::Png, 2);
    fill(root.path(), page, *png);
    const Folders folders = foldersIn(root.path());
    Prefs prefs(folders, Prefs::Watch::Nothing);
    const auto items = HistoryStore(folders, prefs).items();
    const QString folder = root.filePath(u"thumbnails"_s);
    loadAll(folder, items);
    const QString kept = u"%1 thumbnails from files"_s.arg(page), fresh = u"1 from the capture"_s;
    Rounds rounds;
    rounds.add(kept, [&] { loadAll(folder, items); });
    rounds.add(fresh, [&] {
        QDir(root.filePath(u"none"_s)).removeRecursively();
        loadAll(root.filePath(u"none"_s), items.first(1));
    });
    rounds.run(roundCount);
    print(rounds, kept, 20);
    print(rounds, fresh, 100);
}

} // namespace

// usage: HistoryBench [ROUNDS [FOLDER]]; a folder in memory leaves the disk's flush out.
int main(int argc, char** argv)
{
    const Program program(argc, argv);
    const int rounds = Program::number(1, 9);
    const QString place = Program::words(2).value(0, u"/dev/shm"_s);
    const QImage image = drawScreen(ScreenContent::Desk, {3840, 2160});
    std::printf("in %s\n%-32s %9s %9s\n", qPrintable(place), "", "cpu ms", "wall ms");
    for (const auto& target :
        {Target {200, 1, 3}, Target {10'000, 15, 20}, Target {100'000, 350, 200}})
        measureStore(place, target, image, rounds);
    measureThumbnails(place, image, rounds);
    return 0;
}
