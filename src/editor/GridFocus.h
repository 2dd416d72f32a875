// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// Moves the keyboard about among widgets that lie in rows and columns. The Tab key leads to one of
/// them: where the arrow keys have gone to.
namespace GridFocus {

/// To the nearest focusable sibling in the direction of an arrow key. Returns false for other keys;
/// at the edge nothing happens.
bool move(QWidget& from, int key);

} // namespace GridFocus
