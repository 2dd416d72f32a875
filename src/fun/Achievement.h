// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include "fun/FunStats.h"

#include <QStringView>

/// Something to reach. Unlocked as soon as its value reaches the goal, and then for good.
struct Achievement {
    QStringView id;
    QStringView emoji;
    QStringView title;
    QStringView desc;
    qint64 goal;
    qint64 (*value)(const FunStats&);
};
