// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

/// Moves a file that makes no sense out of the way, to PATH.damaged-<date> and over none that was
/// moved before, so that what the user may still want of it is there.
Result<void> setAside(const QString& path);
