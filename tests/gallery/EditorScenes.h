// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/gallery/Gallery.h"

/// The editor's window and what opens in it.
namespace EditorScenes {

/// @param width points of the window
std::unique_ptr<QWidget> window(GalleryWorld& world, int width);

std::unique_ptr<QWidget> stickers(GalleryWorld& world);
std::unique_ptr<QWidget> phrases(GalleryWorld& world);
std::unique_ptr<QWidget> meme(GalleryWorld& world);

} // namespace EditorScenes
