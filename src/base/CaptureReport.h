// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

/// How a capture, or what else was asked for, ended, for whoever asked.
struct CaptureReport {
    enum class Outcome {
        Done,
        Cancelled, ///< By the user.
        Failed, ///< `reason` says why.
        Busy, ///< Another capture was running; this one never began.
        Unavailable, ///< Cannot be done here; `reason` says why.
        NotFound, ///< What it was to be done with does not exist; `reason` names it.
    };

    Outcome outcome = Outcome::Cancelled;
    QString reason {}; ///< A sentence; also what was not done of a capture that is done.
    QString path {}; ///< Absolute, of the saved file; empty when none was saved.
    QSize size {}; ///< Device pixels.
    double scale = 1; ///< Device pixels per point.
    QString app {}; ///< The program it shows.
    QString historyId {}; ///< Empty when it is in no history.
    QString text {}; ///< What was recognised, of a text capture.
};
