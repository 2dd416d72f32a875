// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/Annotation.h"

#include <vector>

/// The captions of a meme.
namespace Memes {

/// Large white lines, one near the upper and one near the lower edge, each as large as fits the
/// picture; a long one is broken in two. An empty one is left out.
/// @param picture pixels.
std::vector<Annotation> captions(const QString& top, const QString& bottom, QSize picture);

} // namespace Memes
