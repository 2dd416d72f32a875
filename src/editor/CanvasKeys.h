// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/CanvasModel.h"

/// What the mouse does on the canvas, done with keys: Return makes an annotation with the tool in
/// hand, or opens the selected text; Ctrl+Tab goes from one to the next; Ctrl with the arrow keys
/// sizes the selected one, in longer steps with Shift. A crop is begun and ended with Return and
/// moved and sized in the same way. The model's own keys do the rest.
namespace CanvasKeys {

/// Whether the key was one of these, and is done.
/// @param seen the part of the picture that is in sight, pixels.
bool take(CanvasModel& model, int key, Qt::KeyboardModifiers modifiers, const QRectF& seen);

} // namespace CanvasKeys
