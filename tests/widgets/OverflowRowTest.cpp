// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/OverflowRow.h"

#include <gtest/gtest.h>

using OverflowRules::Control;
using OverflowRules::shown;

TEST(OverflowRowTest, hidesWhatMattersLeastAndKeepsRoomForItsMenu)
{
    const std::vector<Control> controls {{100, 0, 3}, {50, 10, 1}, {80, 10, 2}, {20, 10, 0}};
    const Control button {30, 5, 0};
    using Shown = std::vector<bool>;
    EXPECT_EQ(shown(controls, 280, button), Shown({true, true, true, true}));
    EXPECT_EQ(shown(controls, 279, button), Shown({true, false, true, false}))
        << "without the last alone there is no room for the button";
    EXPECT_EQ(shown(controls, 285, {3, 2, 0}), Shown({true, true, true, true}));
    EXPECT_EQ(shown(controls, 279, {3, 2, 0}), Shown({true, true, true, false}));
    EXPECT_EQ(shown(controls, 10, button), Shown({true, false, false, false}));
    EXPECT_EQ(shown({}, 10, button), Shown());
}
