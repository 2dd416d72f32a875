// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "app/TextProcess.h"
#include "bench/Rounds.h"
#include "bench/SampleText.h"
#include "bench/ScreenContent.h"
#include "capture/Files.h"
#include "history/HistoryGrid.h"
#include "history/HistoryIndex.h"
#include "history/HistoryWindow.h"
#include "history/TextIndex.h"
#include "platform/fake/FakePlatform.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>

#include <malloc.h>

#include <algorithm>
#include <cstdio>
#include <ctime>

using namespace Qt::StringLiterals;

namespace {

constexpr int entries = 10'000;
constexpr int wordsEach = 250; // Of a screen full of text.
constexpr double paintLimit = 150, frameLimit = 8, keyLimit = 16,
                 delayLimit = 5; // Milliseconds.

double milliseconds(clockid_t clock)
{
    timespec time {};
    clock_gettime(clock, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

double heapMebibytes()
{
    const auto heap = mallinfo2();
    return double(heap.uordblks + heap.hblkhd) / 1048576;
}

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

/// All entries show one of a few files; every one has a text of its own.
void fill(const QString& root, const QImage& image)
{
    const Folders folders = foldersIn(root);
    QDir().mkpath(folders.data + u"/History/Texts"_s);
    const auto png = Files::encode(image, ImageType::Png, 2);
    for (int i = 0; i < 10; ++i)
        put(root + u"/Screenshot %1.png"_s.arg(i), *png);
    QList<HistoryItem> items;
    for (int i = 0; i < entries; ++i) {
        const QString id = newHistoryId();
        items.append({id, 794000000.125 - i * 1000.5, root + u"/Screenshot %1.png"_s.arg(i % 10),
            image.width(), image.height(), 2, i % 3 == 0 ? u"Terminal"_s : u"Web Browser"_s,
            false});
        put(folders.data + u"/History/Texts/%1.txt"_s.arg(id),
            SampleText::prose(wordsEach, quint32(i)).toUtf8());
    }
    put(folders.data + u"/History/index.json"_s, HistoryIndex::toJson(items));
}

void print(const char* name, double value, double limit)
{
    std::printf("%-44s %9.2f  %s %g\n", name, value, value <= limit ? "<=" : "MISSED", limit);
    std::fflush(stdout);
}

class Browser final {
public:
    explicit Browser(const QString& root)
        : m_folders(foldersIn(root))
    {
        m_prefs.registerDefaults();
        m_prefs.set(Prefs::keys.historyMax, 1'000'000);
        m_skins.apply();
        m_texts.open(m_store.items());
        while (!m_texts.isReady())
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    std::unique_ptr<HistoryView> open()
    {
        auto view = std::make_unique<HistoryView>(
            HistoryView::Means {m_themes, m_store, m_actions, m_texts});
        view->resize(900, 640);
        return view;
    }

private:
    const Folders m_folders;
    Prefs m_prefs {m_folders, Prefs::Watch::Nothing};
    FakePlatform m_platform;
    Skins m_skins {m_prefs, *m_platform.appearance};
    Themes m_themes {m_skins, *m_platform.appearance};
    HistoryStore m_store {m_folders, m_prefs};
    TextIndex m_texts {m_folders};
    HistoryActions m_actions {{m_themes, m_prefs, m_store, *m_platform.clipboard,
        *m_platform.workspace, m_platform.words, {}, {}}};
};

void settle(int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < milliseconds)
        QApplication::processEvents(QEventLoop::AllEvents, 5);
}

/// Until the first picture of the window is there; thumbnails follow.
void measurePaint(Browser& browser, int rounds)
{
    Rounds measured;
    std::vector<std::unique_ptr<HistoryView>> views; // Their ends are not measured.
    measured.add(u"paint"_s, [&] {
        views.push_back(browser.open());
        views.back()->grab();
    });
    measured.run(rounds);
    print("first paint, CPU ms", measured.medianCpu(u"paint"_s), paintLimit);
}

void measureScrolling(HistoryView& view)
{
    auto* const grid = view.findChild<HistoryGrid*>();
    std::vector<double> frames;
    for (int pass = 0; pass < 2; ++pass) { // Thumbnails are reduced in the first one.
        grid->verticalScrollBar()->setValue(0);
        for (int i = 0; i < 300; ++i) {
            const double before = milliseconds(CLOCK_THREAD_CPUTIME_ID);
            grid->verticalScrollBar()->setValue(grid->verticalScrollBar()->value() + 37);
            QApplication::processEvents(); // What has been read meanwhile arrives.
            grid->viewport()->grab();
            if (pass == 1)
                frames.push_back(milliseconds(CLOCK_THREAD_CPUTIME_ID) - before);
            settle(pass == 0 ? 15 : 2);
        }
    }
    std::ranges::sort(frames);
    print("a frame while scrolling, CPU ms, median", frames[frames.size() / 2], frameLimit);
    print(
        "a frame while scrolling, CPU ms, 95 of 100", frames[frames.size() * 95 / 100], frameLimit);
}

void measureKeys(HistoryView& view)
{
    auto* const search = view.findChild<QLineEdit*>();
    std::vector<double> keys;
    for (const QString& word : {u"xylophone"_s, u"the"_s, u"terminal"_s, u"monday"_s, u"e"_s}) {
        for (qsizetype length = 1; length <= word.size(); ++length) {
            const double before = milliseconds(CLOCK_THREAD_CPUTIME_ID);
            search->setText(word.left(length));
            view.grab();
            keys.push_back(milliseconds(CLOCK_THREAD_CPUTIME_ID) - before);
        }
        search->clear();
        search->setText(word); // Pasted: nothing was found before.
        search->clear();
    }
    std::ranges::sort(keys);
    print("a keystroke and its picture, CPU ms, median", keys[keys.size() / 2], keyLimit);
    print("a keystroke and its picture, CPU ms, worst", keys.back(), keyLimit);
}

/// What takes a capture's time, alone and while a large one is being read for the history. Nothing
/// gives way here, where a real capture has the reader give up before it begins.
void measureDelay(const QString& root, int rounds)
{
    TextProcess reader(QCoreApplication::applicationDirPath() + u"/pixmallow-desktop"_s);
    const QString page = root + u"/page.png"_s;
    drawScreen(ScreenContent::Editor, {3840, 2160}).save(page);
    const QImage captured = drawScreen(ScreenContent::Desk, {3840, 2160});
    const auto encode = [&captured]() -> Rounds::Sample {
        const double before = milliseconds(CLOCK_MONOTONIC);
        std::ignore = Files::encode(captured, ImageType::Png, 2);
        return {0, milliseconds(CLOCK_MONOTONIC) - before};
    };
    const QString alone = u"alone"_s, reading = u"reading"_s;
    Rounds measured;
    measured.addMeasured(alone, encode);
    measured.addMeasured(reading, [&] {
        std::ignore = reader.read(page);
        settle(300);
        const auto sample = encode();
        reader.giveUp();
        return sample;
    });
    measured.run(rounds);
    std::printf("%-44s %9.2f\n", "encoding a capture, wall ms", measured.medianWall(alone));
    print("the same longer while another is read, ms",
        measured.medianWall(reading) - measured.medianWall(alone), delayLimit);
}

} // namespace

// usage: BrowserBench [ROUNDS]
int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int rounds = argc > 1 ? std::max(1, std::atoi(argv[1])) : 9;
    const QTemporaryDir root(u"/dev/shm/pixmallow-bench-XXXXXX"_s);
    fill(root.path(), drawScreen(ScreenContent::Desk, {1920, 1080}));
    Browser browser(root.path());
    measureDelay(root.path(), 3 * rounds);
    measurePaint(browser, rounds);

    const double before = heapMebibytes();
    const auto view = browser.open();
    view->show();
    settle(3000);
    std::printf("%-44s %9.1f\n", "window with all texts, MiB", heapMebibytes() - before);
    measureScrolling(*view);
    std::printf("%-44s %9.1f\n", "after scrolling, MiB", heapMebibytes() - before);
    measureKeys(*view);
    return 0;
}
