// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/KilledProcess.h"
#include "tests/history/HistoryPlace.h"

#include <gmock/gmock.h>

#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int limit = 20;

/// Adds until it is killed; writes each id that add() returned, as fixed a length as they have.
[[noreturn]] void addForEver(const QString& root, int round, int report)
{
    HistoryPlace place(root);
    place.prefs().set(Prefs::keys.historyMax, limit);
    for (int i = 0;; ++i) {
        const QImage image = sampleImage(i, {200, 100});
        const QString name = QString::number(round) + u'-' + QString::number(i);
        const QString saved = i % 3 == 0 ? place.savedFile(name) : QString();
        const QByteArray id = place.store().add(image, 1, saved, name, pngOf(image)).toLatin1();
        if (i % 7 == 6)
            place.store().update(place.store().items().at(3).id, image, 1, place.savedFile(name));
        if (write(report, id.constData(), std::size_t(id.size())) != id.size())
            _exit(1);
    }
}

/// The ids that a process reported which was killed some time after it reported the first one.
QStringList idsOfKilled(const QString& root, int round, unsigned long milliseconds)
{
    const QByteArray text = KilledProcess::reportOf(
        [&](int report) { addForEver(root, round, report); }, milliseconds * 1000);
    QStringList ids;
    for (qsizetype at = 0; at + 36 <= text.size(); at += 36)
        ids.append(QString::fromLatin1(text.mid(at, 36)));
    return ids;
}

} // namespace

TEST(HistoryCrashTest, hasEveryReportedEntryAfterBeingKilled)
{
    const QTemporaryDir root;
    std::mt19937 random(1);
    QStringList reported; // Oldest first.
    for (int round = 0; round < soaked(20); ++round) {
        SCOPED_TRACE(round);
        reported += idsOfKilled(root.path(), round, random() % 120);

        HistoryPlace place(root.path());
        QStringList expected {u"index.json"_s}, ids;
        for (const auto& item : place.store().items()) {
            ids.prepend(item.id);
            if (item.cached)
                expected.append(item.id + u".png"_s);
            if (item.cached)
                EXPECT_EQ(QImage(item.path).size(), QSize(200, 100));
            else
                EXPECT_EQ(place.contentOf(item.path), "the user's");
        }
        expected.sort();
        EXPECT_EQ(place.names(place.folder()), expected) << "nothing cut off stays";
        // While one more is added the oldest may already be gone.
        if (reported.last() != ids.last())
            reported.append(ids.last());
        const auto sure = std::min<qsizetype>(reported.size(), limit - 1);
        ASSERT_EQ(ids.last(sure), reported.last(sure));
        place.stop();
        for (const QString& name : place.names(place.thumbnails()))
            EXPECT_TRUE(ids.contains(name.first(36))) << qPrintable(name);
    }
}
