// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/gallery/Gallery.h"

/// The windows of past captures and of achievements, with something in them.
namespace HistoryScenes {

/// @param query what is looked for; empty for nothing.
std::unique_ptr<QWidget> history(GalleryWorld& world, int captures, const QString& query);
std::unique_ptr<QWidget> achievements(GalleryWorld& world);
std::unique_ptr<QWidget> popUp(GalleryWorld& world);

} // namespace HistoryScenes
