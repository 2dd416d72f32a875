// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "cli/Print.h"

#include "base/Words.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cerrno>
#include <cstdio>
#include <cstring>

using namespace Qt::StringLiterals;

Result<void> print(const QByteArray& text)
{
    const auto length = std::size_t(text.size());
    if (std::fwrite(text.constData(), 1, length, stdout) != length || std::fflush(stdout) != 0)
        return Error::failed(Words::tr("Cannot write to standard output: %1.")
                                 .arg(QString::fromLocal8Bit(std::strerror(errno))));
    return {};
}

Result<void> print(const QJsonValue& value)
{
    const auto document
        = value.isArray() ? QJsonDocument(value.toArray()) : QJsonDocument(value.toObject());
    return print(document.toJson(QJsonDocument::Compact) + '\n');
}

void complain(const QString& sentence)
{
    std::fprintf(stderr, "pixmallow: %s\n", sentence.toLocal8Bit().constData());
}

QJsonObject toJson(QRect rect)
{
    return {{u"x"_s, rect.x()}, {u"y"_s, rect.y()}, {u"width"_s, rect.width()},
        {u"height"_s, rect.height()}};
}
