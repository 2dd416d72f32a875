// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// How often somebody tried to reopen a journal that was left behind is in the name of its record,
/// before the try: one that makes the program crash is not offered for ever.
namespace JournalKeys {

inline const QString written = QStringLiteral("journal"); ///< Not tried yet.
inline const QStringList tried {QStringLiteral("tried1"), QStringLiteral("tried2")};
inline const QString givenUp = QStringLiteral("failed"); ///< Kept for the curious, not offered.

/// The name after one more try; givenUp where that would be one too many.
inline QString afterTry(const QString& key)
{
    return key == written ? tried[0] : key == tried[0] ? tried[1] : givenUp;
}

} // namespace JournalKeys
