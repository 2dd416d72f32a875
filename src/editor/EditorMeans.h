// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"
#include "capture/ShotActions.h"
#include "editor/keeping/KeptEdits.h"
#include "fun/Fun.h"
#include "history/HistoryStore.h"
#include "platform/Clipboard.h"
#include "platform/FaceDetector.h"
#include "widgets/FloatingPanel.h"

#include <memory>

/// What the editor's windows need of the rest of the program. All of it outlives them.
struct EditorMeans {
    Surroundings surroundings;
    const Prefs& prefs;
    Clipboard& clipboard;
    HistoryStore& history;
    KeptEdits& edits;
    Fun& fun;
    ShotActions actions; ///< To pin, to share and to save elsewhere.
    std::shared_ptr<FaceDetector> faces; ///< Shared with the workers that look.
};
