// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryLayout.h"
#include "history/CardSelection.h"

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;
using Move = HistoryLayout::Move;

namespace {

constexpr int gap = 8;
std::mt19937 dice(11);

int any(int limit)
{
    return int(dice() % unsigned(limit));
}

QList<int> anySizes()
{
    QList<int> sizes;
    for (int i = any(12); i > 0; --i)
        sizes << 1 + any(any(4) == 0 ? 60 : 7);
    return sizes;
}

HistoryLayout::Metrics anyMetrics()
{
    return {120 + any(1800), 20, gap, 80 + any(200), 60 + any(150), 20 + any(30)};
}

} // namespace

TEST(HistoryLayoutTest, everyCardHasAPlaceOfItsOwnAndIsFoundThere)
{
    for (int round = 0; round < 300; ++round) {
        const auto metrics = anyMetrics();
        const HistoryLayout layout(anySizes(), metrics);
        for (int i = 0; i < layout.count(); ++i) {
            const QRect card = layout.card(i);
            ASSERT_EQ(layout.cardAt(card.center()), i);
            ASSERT_EQ(layout.cardAt(card.topLeft()), i);
            ASSERT_EQ(layout.cardAt(card.bottomRight()), i);
            ASSERT_EQ(layout.cardAt(card.bottomRight() + QPoint(0, 1)), HistoryLayout::none);
            ASSERT_GE(card.left(), metrics.margin);
            ASSERT_LE(card.right(), metrics.width - metrics.margin - 1);
            if (i + 1 < layout.count()) {
                const QRect next = layout.card(i + 1);
                ASSERT_TRUE(!card.intersects(next));
                ASSERT_TRUE(next.top() > card.bottom() || next.left() > card.right());
            }
            const QRect heading = layout.heading(layout.group(i), 0);
            ASSERT_LT(heading.bottom(), card.top());
        }
        if (layout.count() > 0) {
            ASSERT_EQ(
                layout.card(layout.count() - 1).bottom() + 1 + metrics.margin, layout.height());
        }
    }
}

TEST(HistoryLayoutTest, isMirroredForThoseWhoReadFromTheRight)
{
    for (int round = 0; round < 100; ++round) {
        const auto sizes = anySizes();
        auto metrics = anyMetrics();
        const HistoryLayout layout(sizes, metrics);
        metrics.direction = Qt::RightToLeft;
        const HistoryLayout mirrored(sizes, metrics);
        for (int i = 0; i < layout.count(); ++i) {
            const QRect card = layout.card(i), other = mirrored.card(i);
            ASSERT_EQ(other.left() + card.right() + 1, metrics.width);
            ASSERT_EQ(other.size(), card.size());
            ASSERT_EQ(mirrored.cardAt(other.center()), i);
        }
    }
}

TEST(HistoryLayoutTest, whatIsSeenIsExactlyWhatReachesIn)
{
    for (int round = 0; round < 300; ++round) {
        const HistoryLayout layout(anySizes(), anyMetrics());
        const int top = any(layout.height() + 300) - 150, bottom = top + 1 + any(900);
        const auto [first, last] = layout.cardsWithin(top, bottom);
        for (int i = 0; i < layout.count(); ++i) {
            const QRect card = layout.card(i);
            const bool isSeen = card.bottom() >= top && card.top() < bottom;
            // A row in whose gap the view begins may be there as well.
            const bool isTold = i >= first && i < last;
            ASSERT_TRUE(isTold || !isSeen) << i << ' ' << top << ' ' << bottom;
            ASSERT_TRUE(!isTold || isSeen || card.bottom() + gap >= top) << i << ' ' << top;
        }
        const auto [firstGroup, lastGroup] = layout.groupsWithin(top, bottom);
        for (int group = firstGroup; group < lastGroup; ++group) {
            const QRect heading = layout.heading(group, top);
            ASSERT_GE(heading.top(), layout.heading(group, 0).top());
            if (group + 1 < layout.groups()) { // It is pushed away, not painted over.
                ASSERT_LT(heading.bottom(), layout.heading(group + 1, top).top());
            }
        }
    }
}

TEST(HistoryLayoutTest, keysReachEveryCardAndNeverLeave)
{
    for (int round = 0; round < 200; ++round) {
        const HistoryLayout layout(anySizes(), anyMetrics());
        if (layout.count() == 0) {
            EXPECT_EQ(layout.moved(HistoryLayout::none, Move::Down, 500), HistoryLayout::none);
            continue;
        }
        const int from = any(layout.count());
        const QRect card = layout.card(from);
        for (const Move move : {Move::Previous, Move::Next, Move::Up, Move::Down, Move::PageUp,
                 Move::PageDown, Move::First, Move::Last}) {
            const int to = layout.moved(from, move, 500);
            ASSERT_TRUE(to >= 0 && to < layout.count());
        }
        const int below = layout.moved(from, Move::Down, 500);
        EXPECT_TRUE(below == from ? layout.group(from) == layout.groups() - 1
                                  : layout.card(below).top() > card.top());
        const int page = layout.moved(from, Move::PageDown, 500);
        EXPECT_GE(page, below);
        EXPECT_TRUE(page == below || layout.card(page).top() - card.top() <= 500);
        EXPECT_EQ(layout.moved(from, Move::First, 500), 0);
        EXPECT_EQ(layout.moved(HistoryLayout::none, Move::Last, 500), layout.count() - 1);
        for (int i = 0; i < layout.count(); ++i)
            ASSERT_EQ(layout.moved(i, Move::Next, 500), std::min(i + 1, layout.count() - 1));
    }
}

TEST(CardSelectionTest, extendsFromWhereItBeganAndFollowsWhatIsThere)
{
    using How = CardSelection::How;
    QStringList ids {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s};
    CardSelection selection;
    const auto chosen = [&] {
        QString all;
        for (const QString& id : ids)
            if (selection.contains(id))
                all += id;
        return all;
    };
    selection.choose(ids, 2, How::Alone);
    selection.choose(ids, 4, How::UpTo);
    EXPECT_EQ(chosen(), u"cde"_s);
    selection.choose(ids, 0, How::UpTo);
    EXPECT_EQ(chosen(), u"abc"_s);
    selection.choose(ids, 1, How::Toggled);
    EXPECT_EQ(chosen(), u"ac"_s);
    selection.choose(ids, 3, How::UpTo); // From the one that was toggled.
    EXPECT_EQ(chosen(), u"bcd"_s);
    ids.prepend(u"new"_s);
    selection.follow(ids);
    EXPECT_EQ(selection.current(), 4);
    ids.removeAll(u"d"_s); // The current one goes: its neighbour takes over.
    selection.follow(ids);
    EXPECT_EQ(selection.current(), 4);
    EXPECT_EQ(chosen(), u"bc"_s);
    ids = {u"new"_s, u"a"_s};
    selection.follow(ids);
    EXPECT_EQ(chosen(), u"a"_s);
    selection.follow({});
    EXPECT_EQ(selection.current(), -1);
    EXPECT_EQ(selection.count(), 0);
}
