// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/Toast.h"

#include "capture/ToastView.h"
#include "tests/capture/SurfaceTest.h"

#include <QDeadlineTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class ToastTest : public SurfaceTest {
protected:
    /// The title of the only one shown; empty when there is none.
    static QString title()
    {
        const auto panels = shown();
        EXPECT_LE(panels.size(), 1);
        return panels.isEmpty() ? QString() : panels.first()->findChild<TextLabel*>()->text();
    }

    static bool fades()
    {
        const QDeadlineTimer deadline(5000);
        while (!shown().isEmpty() && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        return shown().isEmpty();
    }

    Toast toast {surroundings, time.callLater()};
};

} // namespace

TEST_F(ToastTest, isReplacedAtOnceAndTheNewerOneStaysItsFullTime)
{
    toast.show({u"First"_s, u"It failed."_s, u"exclamationmark.triangle.fill"_s, 3500ms});
    time.pass(3s);
    EXPECT_EQ(title(), u"First"_s);
    toast.show({u"Second"_s, {}, u"text.viewfinder"_s, 5s});
    EXPECT_EQ(title(), u"Second"_s);
    time.pass(4900ms); // The first one's time ended meanwhile.
    QCoreApplication::processEvents();
    EXPECT_EQ(title(), u"Second"_s);
    time.pass(200ms);
    EXPECT_TRUE(fades());

    toast.show({u"Third"_s, {}, u"macwindow"_s, 1s});
    time.pass(1s); // It begins to fade when the next one comes.
    toast.show({u"Fourth"_s, {}, u"macwindow"_s, 1s});
    EXPECT_EQ(title(), u"Fourth"_s);
}

TEST_F(ToastTest, growsForALongMessageButNotForEver)
{
    const auto sizeOf = [this](const QString& message) {
        const ToastView view(themes, {u"Capture failed"_s, message, u"macwindow"_s});
        return view.sizeHint();
    };
    EXPECT_EQ(sizeOf({}), QSize(320, 80));
    EXPECT_EQ(sizeOf(u"Try selecting a larger or sharper area."_s), QSize(320, 80));
    const QSize some = sizeOf(u"The window is not on screen. "_s.repeated(5));
    const QSize much = sizeOf(u"/home/somebody/Pictures/Pixmallow"_s.repeated(20));
    EXPECT_GT(some.height(), 80);
    EXPECT_LT(much.height(), 140);
    EXPECT_EQ(much.width(), 320);
}
