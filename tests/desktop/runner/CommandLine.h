// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/desktop/DesktopOptions.h"

#include <QStringList>

/// What virtual-desktop was asked for on its command line.
struct CommandLine {
    DesktopOptions desktop;
    QString picture; ///< File to show behind the windows; may be empty.
    bool withClients = false;
    QStringList command; ///< The program and its arguments.
};

/// Reads the command line; says what is wrong with it and ends the program with 2 if it is not
/// understood. Needs the QCoreApplication.
CommandLine readCommandLine();
