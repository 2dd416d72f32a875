// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/history/HistoryPlace.h"

#include <gmock/gmock.h>

#include <QElapsedTimer>
#include <QPainter>

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QImage large = sampleImage(3, {1920, 1080});

class ThumbnailsTest : public testing::Test, protected HistoryPlace {
protected:
    HistoryStore& watched()
    {
        const bool isNew = &store() != m_watched;
        if (isNew)
            QObject::connect(&store(), &HistoryStore::thumbnailLoaded,
                [this](const QString& id, const Thumbnail& thumbnail) {
                    loaded.append({id, thumbnail});
                });
        m_watched = &store();
        return store();
    }
    HistoryStore& restarted()
    {
        stop();
        m_watched = nullptr;
        loaded.clear();
        return watched();
    }
    bool arrive(qsizetype count)
    {
        return comesTrue([&] { return loaded.size() == count; });
    }
    const HistoryItem& newest() { return store().items().first(); }

    QList<std::pair<QString, Thumbnail>> loaded;

private:
    HistoryStore* m_watched = nullptr;
};

} // namespace

TEST_F(ThumbnailsTest, areReducedButMeasureInPointsWhatTheCaptureDoes)
{
    struct Case {
        QSize pixels;
        double scale;
        QSize reduced;
    };
    for (const auto& [pixels, scale, reduced] : {Case {{3840, 2160}, 2, {369, 208}},
             Case {{5000, 100}, 1, {416, 8}}, Case {{30, 2080}, 1.5, {3, 208}},
             Case {{100, 50}, 2, {100, 50}}, Case {{1, 4000}, 1, {1, 208}}}) {
        const QImage image = sampleImage(5, pixels);
        for (const QString& path : {QString(), savedFile(u"a.png"_s, pngOf(image))}) {
            loaded.clear();
            const QString id = watched().add(image, scale, path, {});
            ASSERT_TRUE(arrive(1));
            EXPECT_EQ(loaded.first().first, id);
            const auto thumbnail = store().thumbnail(newest());
            ASSERT_TRUE(thumbnail);
            EXPECT_EQ(thumbnail->image.size(), reduced);
            EXPECT_EQ(thumbnail->size, QSizeF(pixels) / scale);
            EXPECT_EQ(thumbnail->image.pixel(0, 0), image.pixel(0, 0));
        }
    }
}

TEST_F(ThumbnailsTest, ofOldCapturesArriveLaterWithoutHoldingUpTheAsker)
{
    for (int i = 0; i < 12; ++i)
        watched().add(large, 2, savedFile(QString::number(i), pngOf(large)), {});
    QDir(thumbnails()).removeRecursively(); // As caches may be.
    restarted();
    QElapsedTimer timer;
    timer.start();
    for (const auto& item : store().items())
        EXPECT_FALSE(store().thumbnail(item));
    const auto asking = timer.elapsed();
    ASSERT_TRUE(arrive(12));
    EXPECT_LE(asking, timer.elapsed() / 3);
    const QString last = store().items().last().id;
    EXPECT_TRUE(loaded.at(0).first == last || loaded.at(1).first == last) << "asked for last";
    EXPECT_EQ(loaded.first().second.size, QSizeF(960, 540));
    EXPECT_TRUE(store().thumbnail(newest()));
}

TEST_F(ThumbnailsTest, areKeptInFilesUntilTheCaptureChanges)
{
    const QString path = savedFile(u"a.png"_s, pngOf(large));
    const QString id = watched().add(large, 2, path, {});
    ASSERT_TRUE(arrive(1));
    EXPECT_THAT(names(thumbnails()), ElementsAre(id + u".jpg"_s));
    const QImage mark = sampleImage(9, {40, 30});
    ThumbnailFiles(thumbnails()).write(id, mark, stampOf(path));
    EXPECT_FALSE(restarted().thumbnail(newest()));
    ASSERT_TRUE(arrive(1));
    EXPECT_EQ(loaded.first().second.image.size(), mark.size()) << "from the file";

    put(path, pngOf(sampleImage(4, {1920, 1080})));
    EXPECT_FALSE(restarted().thumbnail(newest()));
    ASSERT_TRUE(arrive(1));
    EXPECT_EQ(loaded.first().second.image.pixel(5, 5), sampleImage(4).pixel(0, 0));

    put(path, pngOf(sampleImage(4, {1000, 500}))); // Cropped by another program.
    EXPECT_FALSE(restarted().thumbnail(newest()));
    ASSERT_TRUE(arrive(1));
    EXPECT_EQ(loaded.first().second.size, QSizeF(500, 250));
}

TEST_F(ThumbnailsTest, followTheirEntries)
{
    QImage window = sampleImage(6, {300, 200}).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QString opaque = watched().add(window, 1, {}, {});
    window.setPixel(0, 0, 0);
    const QString shadowed = store().add(window, 1, {}, {});
    ASSERT_TRUE(arrive(2));
    QStringList files {opaque + u".jpg"_s, shadowed + u".png"_s};
    files.sort();
    EXPECT_EQ(names(thumbnails()), files);
    EXPECT_EQ(qAlpha(store().thumbnail(newest())->image.pixel(0, 0)), 0);

    const HistoryItem item = newest();
    store().update(shadowed, large, 1, {});
    EXPECT_FALSE(store().thumbnail(newest())) << "the old one is not shown again";
    ASSERT_TRUE(arrive(3));
    EXPECT_EQ(loaded.last().second.size, QSizeF(1920, 1080));
    store().add(large, 1, {}, {}); // Removed before it is made.
    store().remove(newest());
    store().remove(item);
    EXPECT_FALSE(store().thumbnail(item)) << "nothing is made of an entry that is gone";
    store().add(large, 1, {}, {});
    ASSERT_TRUE(arrive(4));
    EXPECT_EQ(loaded.last().first, newest().id);
    put(thumbnails() + u'/' + newHistoryId() + u".jpg"_s, "left behind");
    const QString last = newest().id;
    restarted();
    stop();
    files = {opaque + u".jpg"_s, last + u".jpg"_s};
    files.sort();
    EXPECT_EQ(names(thumbnails()), files);
}

TEST_F(ThumbnailsTest, tellOnceThatACaptureCannotBeRead)
{
    for (const QString& name : {u"text.png"_s, u"cut.png"_s, u"folder.png"_s})
        watched().add(large, 1, savedFile(name, "no picture"), {});
    ASSERT_TRUE(arrive(3));
    put(pictures() + u"/cut.png"_s, pngOf(large).first(60));
    QFile::remove(pictures() + u"/folder.png"_s);
    QDir().mkdir(pictures() + u"/folder.png"_s);
    QDir(thumbnails()).removeRecursively();
    restarted();
    for (const auto& item : store().items())
        EXPECT_FALSE(store().thumbnail(item));
    ASSERT_TRUE(arrive(3));
    for (const auto& [id, thumbnail] : loaded)
        EXPECT_TRUE(thumbnail.image.isNull());
    for (const auto& item : store().items())
        EXPECT_FALSE(store().thumbnail(item));
    QCoreApplication::processEvents();
    stop();
    EXPECT_EQ(loaded.size(), 3) << "painting must not ask for ever";
    EXPECT_THAT(names(thumbnails()), IsEmpty());
}

TEST_F(ThumbnailsTest, takeNoMoreThanTheirShareOfMemory)
{
    const QImage most = sampleImage(7, Thumbnails::most);
    const auto fitting = Thumbnails::mostBytes / most.sizeInBytes();
    const QString path = savedFile(u"a.png"_s, pngOf(most));
    for (qsizetype i = 0; i < fitting + 5; ++i)
        watched().add(most, 1, path, {});
    ASSERT_TRUE(arrive(fitting + 5));
    EXPECT_TRUE(store().thumbnail(newest()));
    EXPECT_FALSE(store().thumbnail(store().items().last()));
    EXPECT_TRUE(arrive(fitting + 6)) << "and comes back from its file";
}
