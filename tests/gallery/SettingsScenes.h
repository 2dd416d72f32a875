// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/gallery/Gallery.h"

/// The pages of the settings, and the panel.
QList<Scene> settingsScenes();
