// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/FunStats.h"

#include <QStringView>

/// Something to reach. Unlocked as soon as its value reaches the goal, and then for good.
struct Achievement {
    QStringView id;
    QStringView emoji;
    const char* title; ///< In English, as the next, for Words::tr().
    const char* desc;
    qint64 goal;
    qint64 (*value)(const FunStats&);
};
