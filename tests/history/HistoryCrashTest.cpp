// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/KilledProcess.h"
#include "tests/campaign/Outcome.h"
#include "tests/history/HistoryPlace.h"

#include <gmock/gmock.h>

#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int limit = 20;
constexpr int idLength = 36;

/// What a process says of an entry that is added, of one that it is about to remove and has
/// removed, and of all of them; each followed by an id, zeros for all.
enum Sign : char { Added = '+', Removing = '?', Removed = '-', Clearing = '!', Cleared = '0' };

class Work final {
public:
    Work(const QString& root, unsigned seed, int report)
        : m_place(root)
        , m_random(seed)
        , m_report(report)
    {
        m_place.prefs().set(Prefs::keys.historyMax, limit);
    }

    [[noreturn]] void goOnForEver()
    {
        for (int i = 0;; ++i) {
            const auto chance = m_random() % 40;
            if (i > 0 && chance < 8)
                remove();
            else if (i > 0 && chance == 8)
                clear();
            else
                add(i);
        }
    }

private:
    void add(int number)
    {
        const QImage image = sampleImage(number, {200, 100});
        const QString name = newHistoryId();
        const QString saved = number % 3 == 0 ? m_place.savedFile(name) : QString();
        tell(Added, m_place.store().add(image, 1, saved, name, pngOf(image)));
        const auto& items = m_place.store().items();
        if (number % 7 == 6 && items.size() > 3)
            m_place.store().update(items.at(3).id, image, 1, m_place.savedFile(name));
    }
    void remove()
    {
        const auto& items = m_place.store().items();
        if (items.isEmpty())
            return;
        const HistoryItem item = items.at(qsizetype(m_random()) % items.size());
        tell(Removing, item.id);
        m_place.store().remove(item);
        tell(Removed, item.id);
    }
    void clear()
    {
        tell(Clearing, QString(idLength, u'0'));
        m_place.store().clear();
        tell(Cleared, QString(idLength, u'0'));
    }
    void tell(Sign sign, const QString& id)
    {
        const QByteArray line = sign + id.toLatin1();
        if (line.size() != 1 + idLength
            || write(m_report, line.constData(), std::size_t(line.size())) != line.size())
            _exit(1);
    }

    HistoryPlace m_place;
    std::mt19937 m_random;
    const int m_report;
};

/// The ids that the index must name, oldest first, and what was under way last.
struct Expected {
    void read(const QByteArray& report)
    {
        for (qsizetype at = 0; at + 1 + idLength <= report.size(); at += 1 + idLength) {
            last = Sign(report[at]);
            lastId = QString::fromLatin1(report.mid(at + 1, idLength));
            if (last == Added) {
                ids.append(lastId);
                ids = ids.last(std::min<qsizetype>(ids.size(), limit));
            } else if (last == Removed) {
                ids.removeOne(lastId);
            } else if (last == Cleared) {
                ids.clear();
            }
        }
    }

    /// Whether that may be what there is after the kill.
    bool allows(QStringList found) const
    {
        if (last == Clearing) // Entries go one after the other.
            return std::ranges::all_of(found, [this](auto& id) { return ids.contains(id); });
        auto sure = ids;
        if (last == Removing) {
            found.removeOne(lastId);
            sure.removeOne(lastId);
            return found == sure;
        }
        // One more may have been added, for which the oldest had to go.
        if (!found.isEmpty() && !ids.contains(found.last()))
            found.removeLast();
        const auto some = std::min<qsizetype>(sure.size(), limit - 1);
        return found.size() >= some && found.size() <= sure.size()
            && found == sure.last(found.size());
    }

    QStringList ids {};
    Sign last = Added;
    QString lastId {};
};

QStringList idsOf(const QList<HistoryItem>& items)
{
    QStringList ids;
    for (const auto& item : items)
        ids.prepend(item.id);
    return ids;
}

} // namespace

TEST(HistoryCrashTest, hasEveryReportedEntryAfterBeingKilled)
{
    Outcome outcome(u"Kills while the history changes"_s);
    const QTemporaryDir root;
    std::mt19937 random(1);
    Expected expected;
    for (int round = 0; round < soaked(20); ++round, ++outcome.done) {
        const auto seed = unsigned(random());
        SCOPED_TRACE(testing::Message() << "round " << round << ", seed " << seed);
        expected.read(KilledProcess::reportOf(
            [&](int report) { Work(root.path(), seed, report).goOnForEver(); },
            random() % 120'000));

        HistoryPlace place(root.path());
        const QStringList found = idsOf(place.store().items());
        ASSERT_TRUE(expected.allows(found))
            << qPrintable(found.join(u' ')) << " after " << char(expected.last) << " of "
            << qPrintable(expected.ids.join(u' '));
        QStringList files {u"index.json"_s};
        for (const auto& item : place.store().items()) {
            if (item.cached) {
                files.append(item.id + u".png"_s);
                EXPECT_EQ(QImage(item.path).size(), QSize(200, 100));
            } else {
                EXPECT_EQ(place.contentOf(item.path), "the user's");
            }
        }
        files.sort();
        EXPECT_EQ(place.names(place.folder()), files) << "nothing cut off stays";
        place.stop();
        for (const QString& name : place.names(place.thumbnails()))
            EXPECT_TRUE(found.contains(name.first(idLength))) << qPrintable(name);
        expected = {found};
    }
}
