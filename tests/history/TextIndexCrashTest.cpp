// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/TextIndex.h"

#include "tests/KilledProcess.h"
#include "tests/campaign/Outcome.h"
#include "tests/history/HistoryPlace.h"

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int idLength = 36;

/// Long enough for several pages, so that half of it would be seen.
QString textOf(const QString& id)
{
    return u"%1 ¡Zoë! "_s.arg(id).repeated(400);
}

HistoryItem itemOf(const QString& id)
{
    return {.id = id};
}

/// Puts texts and forgets some until it is killed. Whenever an index has ended, and so all of it is
/// on the disk, reports each as its sign, + or -, and its id.
[[noreturn]] void indexForEver(const Folders& folders, unsigned seed, int report)
{
    std::mt19937 random(seed);
    QStringList present;
    for (;;) {
        QByteArray told;
        {
            TextIndex index(folders);
            for (int i = 0; i < 4; ++i) {
                const bool forgets = !present.isEmpty() && random() % 3 == 0;
                const QString id = forgets ? present.takeAt(qsizetype(random()) % present.size())
                                           : newHistoryId();
                if (forgets)
                    index.forget({id});
                else
                    index.put(id, textOf(id));
                if (!forgets)
                    present.append(id);
                told += (forgets ? '-' : '+') + id.toLatin1();
            }
        }
        if (write(report, told.constData(), std::size_t(told.size())) != told.size())
            _exit(1);
    }
}

/// What a killed process reported, in order: those still there, and those forgotten.
struct Reported {
    QStringList present, forgotten;
};

Reported reportedBy(const QByteArray& text)
{
    Reported reported;
    for (qsizetype at = 0; at + 1 + idLength <= text.size(); at += 1 + idLength) {
        const QString id = QString::fromLatin1(text.mid(at + 1, idLength));
        if (text[at] == '+')
            reported.present.append(id);
        else
            reported.forgotten.append(id);
    }
    reported.present.removeIf([&](const QString& id) { return reported.forgotten.contains(id); });
    return reported;
}

} // namespace

TEST(TextIndexCrashTest, hasEveryReportedTextWholeAfterBeingKilled)
{
    Outcome outcome(u"Kills while texts are indexed"_s);
    std::mt19937 random(4);
    for (int round = 0; round < soaked(20); ++round, ++outcome.done) {
        HistoryPlace place;
        const auto seed = unsigned(random());
        SCOPED_TRACE(testing::Message() << "round " << round << ", seed " << seed);
        const auto reported = reportedBy(KilledProcess::reportOf(
            [&](int report) { indexForEver(place.folders(), seed, report); }, random() % 60'000));

        // Of some entries that are still there; every fourth was removed from the history
        // meanwhile.
        QList<HistoryItem> items;
        for (qsizetype i = 0; i < reported.present.size(); ++i)
            if (i % 4 != 3)
                items.append(itemOf(reported.present[i]));
        TextIndex index(place.folders());
        index.open(items);
        ASSERT_TRUE(comesTrue([&] { return index.isReady(); }));
        // What was forgotten just before the kill need not have been reported.
        qsizetype lost = 0;
        for (const auto& item : items) {
            const QString text = index.text(item.id);
            lost += text.isNull();
            EXPECT_TRUE(text.isNull() || text == textOf(item.id)) << "a part of a text";
        }
        EXPECT_LE(lost, 4);
        EXPECT_EQ(index.count(), items.size() - lost);
        for (const QString& id : reported.forgotten)
            EXPECT_TRUE(index.text(id).isNull()) << "of a removed entry";
        EXPECT_EQ(place.names(place.folder() + u"/Texts"_s).size(), items.size() - lost)
            << "nothing cut off stays";
    }
}
