// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "capture/Countdown.h"
#include "capture/Toast.h"
#include "editor/EditorCanvas.h"
#include "history/HistoryGrid.h"
#include "preview/Pins.h"
#include "preview/PreviewPanel.h"
#include "tests/accessibility/AccessibleWalk.h"
#include "tests/capture/SurfaceTest.h"
#include "tests/gallery/EditorScenes.h"
#include "tests/gallery/HistoryScenes.h"
#include "widgets/Accessible.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

struct Heard {
    QAccessible::Event type;
    QString name;
};
QList<Heard> heard;

void listen(QAccessibleEvent& event)
{
    const auto* told = event.accessibleInterface();
    heard << Heard {event.type(), told ? told->text(QAccessible::Name) : QString()};
}

QStringList namesOf(QAccessible::Event type)
{
    QStringList names;
    for (const Heard& each : std::exchange(heard, {}))
        if (each.type == type)
            names << each.name;
    return names;
}

/// As if an assistive program were there.
class AccessiblePartsTest : public SurfaceTest {
protected:
    AccessiblePartsTest()
    {
        Accessible::setListener(listen);
        heard.clear();
    }
    ~AccessiblePartsTest() override { Accessible::setListener({}); }

    template <typename Widget>
    static Widget& inWindow(QWidget& surface)
    {
        surface.show();
        surface.activateWindow();
        QApplication::processEvents();
        auto* widget = surface.findChild<Widget*>();
        widget->setFocus(Qt::TabFocusReason);
        return *widget;
    }
    static void press(QWidget& widget, int key, Qt::KeyboardModifiers modifiers = {})
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(&widget, &event);
    }

    GalleryWorld world;
};

} // namespace

TEST_F(AccessiblePartsTest, cardsOfTheHistoryAreItemsOfAList)
{
    const auto view = HistoryScenes::history(world, 7, {});
    auto& grid = inWindow<HistoryGrid>(*view);
    QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(&grid);
    ASSERT_EQ(list->role(), QAccessible::List);
    ASSERT_EQ(list->childCount(), 7);
    QAccessibleInterface* const first = list->child(0);
    EXPECT_EQ(first->role(), QAccessible::ListItem);
    EXPECT_TRUE(first->text(QAccessible::Name).startsWith(u"Terminal, Today, "_s))
        << first->text(QAccessible::Name).toStdString();
    EXPECT_EQ(list->focusChild(), first) << "the keyboard chose it when it came";
    EXPECT_TRUE(first->state().selected && first->state().focused);
    EXPECT_EQ(list->childAt(first->rect().center().x(), first->rect().center().y()), first);
    EXPECT_EQ(list->indexOfChild(first), 0);

    heard.clear();
    press(grid, Qt::Key_Right);
    EXPECT_EQ(namesOf(QAccessible::Focus), QStringList {list->child(1)->text(QAccessible::Name)});
    EXPECT_FALSE(first->state().selected);

    QString opened;
    QObject::connect(&grid, &HistoryGrid::opened, [&](const auto& item) { opened = item.app; });
    auto* const actions = list->child(3)->actionInterface();
    actions->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(opened, u"Files"_s);

    view->findChild<QLineEdit*>()->setText(u"phone"_s);
    ASSERT_EQ(list->childCount(), 1);
    EXPECT_TRUE(list->child(0)->text(QAccessible::Name).startsWith(u"Phone"_s));
    EXPECT_EQ(list->child(1), nullptr);
}

TEST_F(AccessiblePartsTest, aPinTellsWhatItIsAndHasItsMenuOnTheKeyboard)
{
    Pins pins({world.themes, world.surfaces}, {});
    PinWindow& pin = pins.show({GalleryWorld::picture({320, 200}), 1, u"Terminal"_s, {}});
    QApplication::processEvents();
    EXPECT_EQ(AccessibleWalk::lacking(pin), QStringList());
    EXPECT_EQ(
        QAccessible::queryAccessibleInterface(&pin)->text(QAccessible::Name), u"Pinned capture"_s);
    const QPoint centre = pin.rect().center();
    QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, centre, pin.mapToGlobal(centre));
    QApplication::sendEvent(&pin, &menuKey);
    auto* const menu = pin.findChild<QMenu*>();
    ASSERT_TRUE(menu);
    EXPECT_EQ(AccessibleWalk::lacking(*menu), QStringList());
}

TEST_F(AccessiblePartsTest, annotationsTellTheirKindAndPlace)
{
    const auto window = EditorScenes::window(world, 1200);
    auto& canvas = inWindow<EditorCanvas>(*window);
    QAccessibleInterface* const picture = QAccessible::queryAccessibleInterface(&canvas);
    ASSERT_EQ(picture->role(), QAccessible::Canvas);
    ASSERT_GE(picture->childCount(), 2);
    QAccessibleInterface* const arrow = picture->child(1);
    EXPECT_TRUE(arrow->text(QAccessible::Name).startsWith(u"Arrow, 264 × 224 at 458, 398"_s))
        << arrow->text(QAccessible::Name).toStdString();
    EXPECT_FALSE(arrow->state().selected);
    arrow->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_TRUE(picture->child(1)->state().selected);

    heard.clear();
    press(canvas, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(
        namesOf(QAccessible::Focus), QStringList {picture->child(2)->text(QAccessible::Name)});
    const int before = picture->childCount();
    press(canvas, Qt::Key_Delete);
    EXPECT_EQ(picture->childCount(), before - 1);
    EXPECT_EQ(picture->focusChild(), nullptr);
}

TEST_F(AccessiblePartsTest, whatPassesByItselfIsAnnounced)
{
    Toast toast(surroundings, time.callLater());
    toast.show({u"Text copied — 3 lines"_s, {}, u"text.viewfinder"_s});
    EXPECT_EQ(namesOf(QAccessible::Alert), QStringList {u"Text copied — 3 lines"_s});

    Countdown countdown(surroundings, time.callLater());
    const auto ended = countdown.run(2);
    heard.clear();
    time.pass(1s);
    EXPECT_EQ(namesOf(QAccessible::Alert), QStringList {u"1, Click to cancel"_s});

    PreviewPanel card(surroundings, world.prefs, world.fun, {}, {});
    card.show({{GalleryWorld::picture({64, 40}), 1, {}, {}}}, u"64 × 40  •  Saved"_s);
    EXPECT_EQ(namesOf(QAccessible::Alert), QStringList {u"Screenshot: 64 × 40  •  Saved"_s});
}
