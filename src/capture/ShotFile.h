// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "capture/Shot.h"

/// An image file as if it had just been captured. Its scale is what its resolution tells, where
/// that is one that screens have, else 1. Takes values only and may run on any thread. Fails with a
/// sentence that names the file.
Result<Shot> readShot(const QString& path);
