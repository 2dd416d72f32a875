// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "update/UpdateSource.h"

#include <QUrl>

using namespace Qt::StringLiterals;

UpdateSource UpdateSource::ofBuild()
{
    UpdateSource source {QStringLiteral(PIXMALLOW_UPDATE_FEED), QStringLiteral(PIXMALLOW_HOME_PAGE),
        QStringLiteral(PIXMALLOW_UPDATE_MEMBER), QStringLiteral(PIXMALLOW_UPDATE_SUFFIX),
        QStringLiteral(PIXMALLOW_UPDATE_SYSTEM), QStringLiteral(PIXMALLOW_VERSION)};
    const QString chosen = qEnvironmentVariable("PIXMALLOW_UPDATE_FEED");
    if (!chosen.isEmpty() && QUrl(chosen, QUrl::StrictMode).isValid())
        source.feed = chosen;
    return source;
}

QByteArray UpdateSource::userAgent() const
{
    return u"Pixmallow/%1 (%2; +%3)"_s.arg(version, system, homePage).toUtf8();
}
