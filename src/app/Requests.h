// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Control.h"
#include "base/Pending.h"

#include <functional>

class AppState;
class Rooms;

/// What can be done with an entry of the history for another program.
enum class EntryDeed { Edit, Pin, Copy, Reveal, Remove };

/// What other programs of the user may ask of this one, whichever way they do. Those that report
/// have done what was asked, windows included, by the time the report is there.
struct Requests {
    using Report = Pending<CaptureReport>;

    std::function<void()> showPanel;
    std::function<void()>
        activate {}; ///< The user wants to see the program, started just now or not.
    std::function<Report(CaptureKind)> capture;
    std::function<void()> quit; ///< Returns before the program ends.
    std::function<Report(QStringList paths)> pin {};
    std::function<Report(QStringList paths)> edit {};
    std::function<Report(EntryDeed, QString id)> withEntry {};
    std::function<void(Control::Show::What)> show {};
    std::function<QList<CaptureKind>()> refusedShortcuts {};

    /// All of them, for as long as both live.
    static Requests to(AppState& state, Rooms& rooms);
};
