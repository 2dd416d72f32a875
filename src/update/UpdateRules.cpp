// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "update/UpdateRules.h"

#include "base/Words.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QUrl>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 secondsBetweenChecks = 86'400;
constexpr qsizetype digestLength = 64;

/// 0 for whatever is no whole number or too large for one.
qint64 numberOf(const QString& piece)
{
    static const QRegularExpression whole(u"\\A[+-]?[0-9]+\\z"_s);
    return whole.match(piece).hasMatch() ? piece.toLongLong() : 0;
}

/// The host of "scheme://host:port/…" as it is written; empty where there is none.
QString hostIn(const QString& address, const QString& scheme)
{
    static const QRegularExpression form(
        u"\\A//(?<host>[^/?#@:\\\\\\s]+)(?::[0-9]*)?(?:[/?#]|\\z)"_s);
    return form.match(address.mid(scheme.size() + 1)).captured(u"host"_s);
}

std::optional<QString> textOf(const QJsonObject& object, QLatin1StringView name)
{
    const QJsonValue value = object[name];
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

/// A list of anything but texts counts as none.
QStringList notesOf(const QJsonValue& value)
{
    QStringList notes;
    for (const auto& note : value.toArray()) {
        if (!note.isString())
            return {};
        notes << note.toString();
    }
    return notes;
}

} // namespace

Error errorOf(UpdateError error)
{
    switch (error) {
    case UpdateError::Invalid:
        return Error::failed(Words::tr("the update file is incomplete"));
    case UpdateError::Insecure:
        return Error::failed(Words::tr("updates must use HTTPS"));
    case UpdateError::Checksum:
        break;
    }
    return Error::failed(
        Words::tr("the download didn't match its checksum, so it wasn't opened. Try again later."));
}

int UpdateRules::compare(const QString& a, const QString& b)
{
    const QStringList ofA = a.split(u'.', Qt::SkipEmptyParts);
    const QStringList ofB = b.split(u'.', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < std::max(ofA.size(), ofB.size()); ++i) {
        const qint64 inA = numberOf(ofA.value(i)), inB = numberOf(ofB.value(i));
        if (inA != inB)
            return inA > inB ? 1 : -1;
    }
    return 0;
}

bool UpdateRules::isSafe(const QString& address)
{
    const QUrl parsed(address, QUrl::StrictMode);
    if (!parsed.isValid())
        return false;
    if (address.startsWith(u"https:"_s))
        return !parsed.host().isEmpty();
    if (!address.startsWith(u"http:"_s))
        return false;
    const QString host = hostIn(address, u"http"_s);
    return (host == u"localhost"_s || host == u"127.0.0.1"_s) && parsed.host() == host;
}

Result<std::optional<UpdateInfo>> UpdateRules::readFeed(
    const QByteArray& feed, const QString& member)
{
    QJsonParseError parsing;
    const auto document = QJsonDocument::fromJson(feed, &parsing);
    if (parsing.error != QJsonParseError::NoError)
        return Error::failed(parsing.errorString());
    if (!document.isObject())
        return errorOf(UpdateError::Invalid);
    const QJsonObject whole = document.object();
    if (!whole[member].isObject())
        return std::optional<UpdateInfo>();
    const QJsonObject build = whole[member].toObject();

    const auto version
        = build.contains("version"_L1) ? textOf(build, "version"_L1) : textOf(whole, "version"_L1);
    const auto url = textOf(build, "url"_L1);
    const auto digest = textOf(build, "sha256"_L1);
    if (!version || !url || !QUrl(*url, QUrl::StrictMode).isValid() || !digest
        || digest->toLower().size() != digestLength)
        return errorOf(UpdateError::Invalid);
    if (!isSafe(*url))
        return errorOf(UpdateError::Insecure);
    return std::optional(UpdateInfo {*version, textOf(whole, "date"_L1).value_or(QString()), *url,
        digest->toLower(), notesOf(whole["notes"_L1])});
}

bool UpdateRules::isDue(const QDateTime& last, const QDateTime& now)
{
    return !last.isValid() || last.secsTo(now) >= secondsBetweenChecks;
}

QString UpdateRules::fileName(const QString& version, const QString& suffix)
{
    static const QRegularExpression elsewhere(u"[^A-Za-z0-9._+~-]"_s);
    return u"Pixmallow-"_s + QString(version).replace(elsewhere, u"_"_s) + suffix;
}
