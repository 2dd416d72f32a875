// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What desktops know the program by, a domain the wrong way round: the names of its desktop entry
/// and on the session bus. Packages may set another one.
QString applicationId();
