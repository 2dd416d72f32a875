// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "ui/panel/PanelView.h"

#include "platform/fake/FakePlatform.h"
#include "tests/TestUser.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QKeyEvent>

using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

class PanelViewTest : public testing::Test, protected TestUser {
protected:
    CaptureStages stages()
    {
        CaptureStages stages;
        stages.countDown = [](int) { return Pending<void>::answered({}); };
        stages.showPermissionWindow = [this] { m_done << u"asked"_s; };
        stages.showHistory = [this] { m_done << u"history"_s; };
        return stages;
    }

    std::unique_ptr<PanelView> open()
    {
        auto view = std::make_unique<PanelView>(PanelView::Means {m_themes, prefs, m_state, m_fun,
            m_history, m_recent, [this] { return m_update; }, [] {}});
        QObject::connect(view.get(), &PanelView::done, [this] { m_done << u"closed"_s; });
        view->resize(view->sizeHint());
        view->show();
        view->activateWindow();
        view->setFocus();
        QCoreApplication::processEvents();
        return view;
    }

    /// What can be taken now, from top to bottom, as it is read out.
    static QStringList rows(const PanelView& view)
    {
        QStringList names;
        for (const auto* row : view.findChildren<PanelRow*>())
            if (row->isVisible() && row->isEnabled())
                names << row->accessibleName();
        return names;
    }

    static void press(PanelView& view, Qt::Key key)
    {
        QWidget* receiver = view.focusWidget() ? view.focusWidget() : &view;
        QKeyEvent event(QEvent::KeyPress, key, {});
        QCoreApplication::sendEvent(receiver, &event);
    }
    static QString focused(const PanelView& view)
    {
        return view.focusWidget() ? view.focusWidget()->accessibleName() : QString();
    }

    FakePlatform m_platform;
    HotkeyCenter m_hotkeys {*m_platform.hotkeys};
    Skins m_skins {prefs, *m_platform.appearance};
    Themes m_themes {m_skins, *m_platform.appearance};
    Fun m_fun {folders, prefs};
    HistoryStore m_history {folders, prefs};
    RecentActions m_recent {{}, {}};
    QStringList m_done;
    QString m_update;
    AppState m_state {m_platform, prefs, m_hotkeys, stages()};
};

} // namespace

TEST_F(PanelViewTest, offersWhatCanBeDoneNow)
{
    m_platform.fakeActive().active = Application {u"x"_s, u"Firefox"_s};
    m_state.start();
    prefs.set(Prefs::keys.delaySeconds, 10);
    const auto view = open();
    EXPECT_THAT(rows(*view),
        ElementsAre(u"Capture window, Firefox, Ctrl+Shift+2"_s, u"Capture screen, Ctrl+Shift+3"_s,
            u"Delayed capture (10 s), Ctrl+Shift+4"_s, u"History"_s, u"Settings…"_s,
            u"Quit Pixmallow"_s));

    m_platform.fakeCapture().isPermitted = false;
    m_update = u"Update to 2.0"_s;
    view->refresh();
    EXPECT_THAT(rows(*view),
        ElementsAre(u"Allow capture…"_s, u"History"_s, u"Settings…"_s, u"Update to 2.0"_s,
            u"Quit Pixmallow"_s));
}

TEST_F(PanelViewTest, isWorkedByKeysAndClosesBeforeItActs)
{
    const auto view = open();
    press(*view, Qt::Key_Up);
    EXPECT_EQ(focused(*view), u"Quit Pixmallow"_s);
    press(*view, Qt::Key_Down);
    EXPECT_EQ(focused(*view), u"Capture window, Ctrl+Shift+2"_s) << "round the end";
    for (int row = 0; row < 3; ++row)
        press(*view, Qt::Key_Down);
    EXPECT_EQ(focused(*view), u"History"_s);
    press(*view, Qt::Key_Return);
    EXPECT_THAT(m_done, ElementsAre(u"closed"_s, u"history"_s));
}
