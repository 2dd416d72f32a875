// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

#include <algorithm>
#include <limits>

/// Texts for the user where no class with a tr() of its own is around: `Words::tr("Copied")`. In a
/// table they are marked, `QT_TRANSLATE_NOOP("Words", "Copied")`, and translated when read, since
/// what is static is made before the language is known.
struct Words {
    Q_DECLARE_TR_FUNCTIONS(Words)

public:
    /// A number as %n takes it. Singular texts stand apart, so that English needs no translation.
    static int count(qint64 number)
    {
        return int(std::min<qint64>(number, std::numeric_limits<int>::max()));
    }
};
