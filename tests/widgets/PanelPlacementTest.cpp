// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/PanelPlacement.h"

#include <gtest/gtest.h>

using PanelPlacement::Screen;

namespace {

const Screen left {{0, 0, 1280, 800}, {0, 0, 1280, 760}};
const Screen right {{1280, 50, 1024, 768}, {1340, 50, 964, 768}};

} // namespace

TEST(PanelPlacementTest, choosesTheScreenUnderThePointer)
{
    EXPECT_EQ(PanelPlacement::under({1279, 100}, {left, right}).frame, left.frame);
    EXPECT_EQ(PanelPlacement::under({1280, 100}, {left, right}).frame, right.frame);
    EXPECT_EQ(PanelPlacement::under({1500, 10}, {left, right}).frame, left.frame) << "on none";
    EXPECT_EQ(PanelPlacement::under({0, 0}, {}).workArea, QRect(0, 0, 1440, 900));
}

TEST(PanelPlacementTest, keepsClearOfTheDesktopsPanels)
{
    EXPECT_EQ(PanelPlacement::bottomRight(left, {340, 320}, 16), QRect(924, 424, 340, 320));
    EXPECT_EQ(PanelPlacement::bottomRight(right, {340, 320}, 16), QRect(1948, 482, 340, 320));
    EXPECT_EQ(PanelPlacement::topRight(right, {300, 84}, 16), QRect(1988, 66, 300, 84));
    EXPECT_EQ(PanelPlacement::centred(right, {150, 150}), QRect(1717, 359, 150, 150));
}
