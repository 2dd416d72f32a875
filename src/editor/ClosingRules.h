// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What becomes of a picture when its editor closes: an edit is always kept, and nobody is asked.
namespace ClosingRules {

struct Situation {
    bool isEdited = false;
    QString path {}; ///< Of the file that is shown; empty where there is none.
    bool isInHistory = false; ///< Its entry is still there.
    bool keepsHistory = true; ///< Preferred by the user, as are copies.
    bool copies = true;
    bool isCopied = false; ///< Since the last edit.
    bool isSavedElsewhere = false; ///< By the user since then, after the file could not be written.
};

struct Plan {
    enum class Write {
        Nothing,
        Replace, ///< The file.
        Beside, ///< A new PNG in the file's folder, since only PNG and JPEG are written back.
        NewFile, ///< The next free name in the save folder.
    };
    enum class Entry { Nothing, Update, Add };

    Write write = Write::Nothing;
    Entry entry = Entry::Nothing;
    bool copies = false;
    bool counts = false; ///< For the statistics.

    bool operator==(const Plan&) const = default;
};

Plan plan(const Situation& situation);

} // namespace ClosingRules
