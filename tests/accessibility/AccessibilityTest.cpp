// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/accessibility/AccessibleWalk.h"
#include "tests/gallery/Gallery.h"

#include <QApplication>
#include <QEventLoop>
#include <QTimer>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Samples of what surfaces are made of.
const QStringList samples {u"buttons"_s, u"letters"_s, u"controls"_s, u"menu"_s};

/// They never have the keyboard: what a click there does is done elsewhere as well.
const QStringList withoutKeyboard {u"pop-up"_s, u"countdown"_s};

/// Within a window, as surfaces are.
std::unique_ptr<QWidget> shownScene(const Scene& scene, GalleryWorld& world)
{
    auto window = std::make_unique<QWidget>();
    auto* column = new QVBoxLayout(window.get());
    column->addWidget(scene.make(world).release());
    window->show();
    window->activateWindow();
    QApplication::processEvents();
    return window;
}

/// Whether a surface looks otherwise a moment later.
bool moves(const Scene& scene, GalleryWorld& world)
{
    const auto window = shownScene(scene, world);
    const auto pass = [](int milliseconds) {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    };
    pass(300); // What fades has faded.
    const QImage before = window->grab().toImage();
    pass(150);
    return window->grab().toImage() != before;
}

std::string message(const QString& surface, const QStringList& lines)
{
    QString all;
    for (const QString& line : lines)
        all += surface + u": "_s + line + u'\n';
    return all.toStdString();
}

} // namespace

TEST(AccessibilityTest, everyControlOfEverySurfaceTellsWhatItIs)
{
    GalleryWorld world;
    for (const Scene& scene : scenes()) {
        if (samples.contains(scene.name))
            continue;
        const auto widget = shownScene(scene, world);
        const auto lines = AccessibleWalk::lacking(*widget);
        EXPECT_TRUE(lines.isEmpty()) << message(scene.name, lines);
    }
}

TEST(AccessibilityTest, everyControlIsReachedByTheKeyboardInTheOrderOfReading)
{
    GalleryWorld world;
    for (const Scene& scene : scenes()) {
        if (samples.contains(scene.name) || withoutKeyboard.contains(scene.name))
            continue;
        const auto widget = shownScene(scene, world);
        const auto lines = AccessibleWalk::unreachable(*widget);
        EXPECT_TRUE(lines.isEmpty()) << message(scene.name, lines);
    }
}

TEST(AccessibilityTest, nothingMovesUnderReducedMotion)
{
    QApplication::setCursorFlashTime(0); // In lines of text, as the desktop has it.
    const QStringList moving {u"preview"_s, u"preview-wide"_s, u"countdown"_s};
    const QStringList still {u"toast"_s, u"pop-up"_s, u"welcome"_s, u"panel"_s, u"history"_s,
        u"editor"_s, u"settings-preview"_s, u"update-loading"_s};
    GalleryWorld world;
    for (const bool reduced : {false, true}) {
        world.platform.fakeAppearance().set({.reducedMotion = reduced});
        world.skins.apply();
        for (const Scene& scene : scenes()) {
            if (!moving.contains(scene.name) && !(reduced && still.contains(scene.name)))
                continue;
            EXPECT_NE(moves(scene, world), reduced) << scene.name.toStdString();
        }
    }
}
