// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Prefs.h"
#include "capture/Region.h"
#include "capture/Shot.h"
#include "platform/ScreenCapture.h"

#include <QCoro/QCoroTask>

#include <functional>

/// Takes shots of screens, windows and regions. The answer is Cancelled where there is nothing to
/// take: no screen, or the user chose none. Lives as long as the program, as all that awaits does.
class ShotTaker final {
public:
    /// Asks the user for a region.
    using SelectRegion = std::function<Pending<RegionResult>(RegionQuestion)>;

    ShotTaker(Displays& displays, ScreenCapture& capture, const Prefs& prefs)
        : m_displays(displays)
        , m_capture(capture)
        , m_prefs(prefs)
    {
    }

    /// The whole screen under the pointer.
    QCoro::Task<Result<Shot>> screenUnderMouse();

    /// The front-most window of a program; none when it has no window that could be taken.
    Result<std::optional<Window>> frontWindow(Application application);
    QCoro::Task<Result<Shot>> window(Window window);

    /// A part of the frozen screens. A purpose stands for a selection made for text recognition,
    /// which never shows the pointer.
    /// @param lastOtherApp names the shot where no window lies under the selection.
    QCoro::Task<Result<Shot>> region(SelectRegion select, QString purpose, QString lastOtherApp);

private:
    QCoro::Task<Result<QImage>> freeze(QRect native, QList<WindowId> excluded, Pointer pointer);
    QCoro::Task<Result<QList<FrozenScreen>>> freezeAll(QList<WindowId> excluded, Pointer pointer);
    Pointer preferredPointer() const;

    Displays& m_displays;
    ScreenCapture& m_capture;
    const Prefs& m_prefs;
};
