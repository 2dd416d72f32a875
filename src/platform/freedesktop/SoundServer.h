// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

/// Connects to the user's PulseAudio server, or to what stands in for it, and tells its name. Gives
/// up after some seconds.
Result<QString> findSoundServer();
