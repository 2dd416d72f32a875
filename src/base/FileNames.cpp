// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/FileNames.h"

#include <QLocale>

using namespace Qt::StringLiterals;

QString FileNames::dated(const QString& prefix, const QDateTime& time)
{
    // The C locale: digits and order stay the same wherever the user lives.
    return prefix + u' ' + QLocale::c().toString(time, u"yyyy-MM-dd 'at' HH.mm.ss"_s);
}

QString FileNames::numbered(const QString& base, int number, const QString& extension)
{
    return number == 1 ? u"%1.%2"_s.arg(base, extension)
                       : u"%1 (%2).%3"_s.arg(base, QString::number(number), extension);
}
