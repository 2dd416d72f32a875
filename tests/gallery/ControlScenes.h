// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/gallery/Gallery.h"

/// The toolkit's own widgets in the house style.
namespace ControlScenes {

std::unique_ptr<QWidget> controls(GalleryWorld& world);
std::unique_ptr<QWidget> menu(GalleryWorld& world);

} // namespace ControlScenes
