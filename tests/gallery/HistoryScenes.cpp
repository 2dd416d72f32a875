// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/gallery/HistoryScenes.h"

#include "base/AtomicFile.h"
#include "fun/GalleryView.h"
#include "fun/PopUpView.h"
#include "history/HistoryView.h"
#include "history/HistoryWindow.h"
#include "history/TextIndex.h"

#include <QApplication>
#include <QDeadlineTimer>

using namespace Qt::StringLiterals;

namespace {

const QDateTime now({2026, 3, 7}, {14, 5}, Qt::UTC);

struct Sample {
    QSize pixels;
    double scale;
    int minutesAgo;
    QString app;
    QString text;
};

const QList<Sample> samples {
    {{1280, 800}, 1, 3, u"Terminal"_s, u"ninja: build stopped"_s},
    {{2560, 1440}, 2, 65, u"Web Browser"_s, u"Your order 4711 is on its way to you"_s},
    {{320, 620}, 1, 190, u"Phone"_s, {}},
    {{1600, 240}, 1, 400, u"Files"_s, {}},
    {{1280, 800}, 1, 900, u"Mail"_s,
        u"Thank you for having bought with us. We will ship order 4711"_s},
    {{48, 48}, 1, 1300, u"Icon Editor"_s, {}},
    {{1920, 1080}, 1, 4000, u"Order of things"_s, {}},
};

/// What a history needs, for as long as its window is there.
class Past final : public QObject {
public:
    Past(GalleryWorld& world, int captures)
        : m_folders(foldersIn(m_home.path()))
        , store(m_folders, world.prefs, [this] { return m_time; })
        , texts(m_folders)
        , actions({world.themes, world.prefs, store, *world.platform.clipboard,
              *world.platform.workspace, world.platform.words, editing(), {}})
    {
        for (int i = std::min(captures, int(samples.size())) - 1; i >= 0; --i) {
            const Sample& sample = samples[i];
            m_time = now.addSecs(-60 * sample.minutesAgo);
            const QString id
                = store.add(GalleryWorld::picture(sample.pixels), sample.scale, {}, sample.app);
            texts.put(id, sample.text);
        }
        texts.load();
    }

    static ShotActions editing()
    {
        ShotActions actions;
        actions.edit = [](const FinishedCapture&) {};
        return actions;
    }
    static Folders foldersIn(const QString& home)
    {
        return {.data = home + u"/data"_s, .cache = home + u"/cache"_s};
    }

private:
    const QTemporaryDir m_home;
    const Folders m_folders;
    QDateTime m_time;

public:
    HistoryStore store;
    TextIndex texts;
    HistoryActions actions;
};

} // namespace

std::unique_ptr<QWidget> HistoryScenes::history(
    GalleryWorld& world, int captures, const QString& query)
{
    auto* past = new Past(world, captures);
    const auto calendar = [] {
        return DayCalendar {QTimeZone::utc(), GalleryWorld::locale(), now.date()};
    };
    auto view = std::make_unique<HistoryView>(
        HistoryView::Means {world.themes, past->store, past->actions, past->texts, calendar});
    QObject::connect(view.get(), &QObject::destroyed, past, &QObject::deleteLater);
    view->setFixedSize(900, 640);
    qsizetype loaded = 0, read = 0;
    QObject::connect(&past->store, &HistoryStore::thumbnailLoaded, view.get(), [&] { ++loaded; });
    QObject::connect(&past->texts, &TextIndex::loaded, view.get(), [&] { ++read; });
    const QDeadlineTimer deadline(5000);
    while (captures > 0 && (loaded < captures || read == 0) && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    past->store.disconnect(view.get());
    past->texts.disconnect(view.get());
    view->setQuery(query);
    return view;
}

std::unique_ptr<QWidget> HistoryScenes::achievements(GalleryWorld& world)
{
    FunStats stats {.total = 315,
        .night = 3,
        .early = 10,
        .texts = 4,
        .edits = 12,
        .facesCovered = 20,
        .stickers = 3,
        .shares = 1,
        .xp = 300,
        .bestStreak = 9};
    for (int i = 0; i < 120; ++i)
        if (i < 5 || i * 7 % 10 < 6)
            stats.days.insert(FunRules::dayKey(now.date().addDays(-i)), 1 + i * i % 11);
    stats.unlocked = QStringList {u"first"_s, u"snap50"_s, u"early"_s, u"fire"_s, u"incognito"_s};
    const Folders folders {.data = world.home.filePath(u"achieved"_s)};
    std::ignore = ensurePrivateFolder(folders.data);
    std::ignore = writeFile(folders.data + u"/stats.json"_s, stats.toJson(),
        {AtomicFile::Existing::Replace, AtomicFile::Access::OwnerOnly});
    QLocale::setDefault(GalleryWorld::locale());
    auto* fun = new Fun(folders, world.prefs, {[] { return now; }, [](int) { return 0; }});
    auto view = std::make_unique<GalleryView>(world.themes, *fun);
    QObject::connect(view.get(), &QObject::destroyed, fun, &QObject::deleteLater);
    view->setFixedSize(view->sizeHint().boundedTo({1264, 784})); // As a window on a screen.
    return view;
}

std::unique_ptr<QWidget> HistoryScenes::popUp(GalleryWorld& world)
{
    return std::make_unique<PopUpView>(world.themes,
        FunPopUp {u"😎"_s, u"Achievement unlocked"_s, u"Snap Happy"_s, u"Take 50 screenshots"_s});
}
