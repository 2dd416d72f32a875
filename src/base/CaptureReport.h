// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QSize>
#include <QString>

/// How one capture ended, for whoever asked for it.
struct CaptureReport {
    enum class Outcome {
        Done,
        Cancelled, ///< By the user.
        Failed, ///< `reason` says why.
        Busy, ///< Another capture was running; this one never began.
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
