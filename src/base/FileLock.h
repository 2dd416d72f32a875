// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Descriptor.h"
#include "base/Result.h"

/// Locks a file, which is made if it is missing, until the descriptor goes. The kernel gives the
/// lock back however its owner ends. The file is never removed: two programs could then lock a file
/// each. Fails with Error::Kind::Exists while somebody else has the lock.
Result<Descriptor> lockFile(const QString& path);
