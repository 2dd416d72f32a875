// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QString>

/// One row of the table that `./dev soak` makes. When it goes, at the end of a test, it says how
/// that test went: a line "what, how many, result, details, seconds" with tabs in between, added to
/// the file that PIXMALLOW_OUTCOMES names, if it names one.
class Outcome final {
public:
    explicit Outcome(QString what);
    ~Outcome();
    Q_DISABLE_COPY_MOVE(Outcome)

    int done = 0; ///< How many of them have been gone through.
    QString details; ///< Figures that were measured.

private:
    const QString m_what;
    QElapsedTimer m_time;
};
