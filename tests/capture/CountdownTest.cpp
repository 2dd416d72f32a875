// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/Countdown.h"

#include "capture/CountdownView.h"
#include "tests/capture/SurfaceTest.h"

#include <QMouseEvent>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class CountdownTest : public SurfaceTest {
protected:
    static void click(QPoint moved = {})
    {
        auto* view = shown().first()->findChild<CountdownView*>();
        const QPoint at(20, 20);
        const auto send = [view](QEvent::Type type, Qt::MouseButtons buttons, QPoint position) {
            QMouseEvent event(
                type, position, view->mapToGlobal(position), Qt::LeftButton, buttons, {});
            QCoreApplication::sendEvent(view, &event);
        };
        send(QEvent::MouseButtonPress, Qt::LeftButton, at);
        send(QEvent::MouseButtonRelease, {}, at + moved);
    }

    Countdown countdown {surroundings, time.callLater()};
};

} // namespace

TEST(CountdownModelTest, showsEachSecondAndEndsWithTheLast)
{
    struct Case {
        int seconds;
        std::vector<int> shown;
        std::chrono::milliseconds lasts;
    };
    for (const auto& [seconds, shown, lasts] :
        {Case {3, {3, 2, 1}, 3s}, Case {1, {1}, 1s}, Case {0, {0}, 200ms}, Case {-5, {0}, 200ms}}) {
        CountdownModel model(seconds);
        std::vector<int> seen;
        std::chrono::milliseconds passed(0);
        do {
            seen.push_back(model.remaining());
            passed += model.untilTick();
        } while (model.tick() == CountdownModel::Tick::GoesOn);
        EXPECT_EQ(seen, shown);
        EXPECT_EQ(passed, lasts);
    }
}

TEST_F(CountdownTest, answersWhenTheTimeIsOver)
{
    auto counted = countdown.run(3);
    time.pass(2999ms);
    EXPECT_FALSE(counted.await_ready());
    time.pass(1ms);
    ASSERT_TRUE(counted.await_ready());
    EXPECT_TRUE(counted.await_resume());
}

TEST_F(CountdownTest, isCancelledByAClickButOnlyWithTheNextTick)
{
    auto counted = countdown.run(5);
    time.pass(300ms);
    click({60, 40}); // Drags the card.
    time.pass(1s);
    ASSERT_FALSE(counted.await_ready());
    click();
    time.pass(699ms);
    EXPECT_FALSE(counted.await_ready());
    time.pass(1ms);
    ASSERT_TRUE(counted.await_ready());
    EXPECT_TRUE(counted.await_resume().error().isCancelled());
}

TEST_F(CountdownTest, isCancelledWhenStoppedOrStartedAnew)
{
    auto first = countdown.run(2);
    time.pass(1500ms);
    auto second = countdown.run(1);
    ASSERT_TRUE(first.await_ready());
    EXPECT_TRUE(first.await_resume().error().isCancelled());
    EXPECT_EQ(shown().size(), 1);
    time.pass(600ms); // A tick of the first.
    EXPECT_FALSE(second.await_ready());
    countdown.stop();
    EXPECT_TRUE(shown().isEmpty());
    ASSERT_TRUE(second.await_ready());
    EXPECT_TRUE(second.await_resume().error().isCancelled());
}
