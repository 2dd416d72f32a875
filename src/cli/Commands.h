// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Arguments.h"

/// Takes the picture and writes it; what the user should read is printed to standard output.
Result<void> runShot(const ShotRequest& request);

/// Prints screens or windows.
Result<void> runList(const ListRequest& request);
