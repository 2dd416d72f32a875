// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/SetAside.h"

#include "base/Words.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

Result<void> setAside(const QString& path)
{
    const QString name
        = path + u".damaged-"_s + QDateTime::currentDateTime().toString(u"yyyy-MM-dd-HHmmss"_s);
    QString free = name;
    for (int i = 2; !QFile::rename(path, free); ++i) {
        if (!QFileInfo::exists(free))
            return Error::failed(Words::tr("Couldn't set the damaged file “%1” aside.").arg(path));
        free = name + u'-' + QString::number(i);
    }
    return {};
}
