// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PlatformWords.h"

/// As it is on the desktops of freedesktop.org.
PlatformWords desktopWords();
