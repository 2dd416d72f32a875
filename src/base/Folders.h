// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

/// Where things are kept, as absolute paths without a closing slash. None of them need exist yet.
struct Folders {
    QString configuration {}; ///< The program's own, for what the user chose.
    QString data {}; ///< The program's own, for what must last: history, statistics, sounds.
    QString cache {}; ///< The program's own, for what can be made again.
    QString pictures {}; ///< The user's.
    QString downloads {}; ///< The user's.
    QString runtime {}; ///< The program's own, for sockets; ensurePrivateFolder() before use.
    QString temporary {}; ///< Shared with every other user.

    /// Those of the user who runs the program, as the XDG variables and user-dirs.dirs have them.
    static Folders ofUser();
};

/// Makes a folder, missing parents included, that only its owner can enter; one that is there
/// already is closed to others. Fails if the system refuses or the folder is somebody else's, as
/// one that was planted under the temporary folder would be.
Result<void> ensurePrivateFolder(const QString& path);
