// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/accessibility/AccessibleWalk.h"
#include "tests/gallery/Gallery.h"

#include <QApplication>
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
