// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "editor/ClosingRules.h"
#include "editor/EditorMeans.h"

/// Carries out what ClosingRules says.
namespace EditKeeper {

/// The picture as it was edited, and where it comes from.
struct Edit {
    Shot shot;
    QString path {}; ///< Of its file; may be empty.
    QString historyId {}; ///< May be empty.
};

/// Where the edit is now.
struct Kept {
    QString path {}; ///< Of the file that was written; empty where none was.
    QString historyId {};
};

/// Encodes and writes before it returns. Fails with a sentence for the user if the edit is not kept
/// as planned; nothing counts or is copied then. What the history does not take goes to a new file.
Result<Kept> keep(const EditorMeans& means, const Edit& edit, const ClosingRules::Plan& plan);

} // namespace EditKeeper
