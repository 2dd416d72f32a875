// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "fun/FunStats.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

struct Counter {
    QLatin1String key;
    qint64 FunStats::*value;
};

constexpr std::array<Counter, 12> counters {{
    {"total"_L1, &FunStats::total},
    {"night"_L1, &FunStats::night},
    {"early"_L1, &FunStats::early},
    {"texts"_L1, &FunStats::texts},
    {"recordings"_L1, &FunStats::recordings},
    {"edits"_L1, &FunStats::edits},
    {"memes"_L1, &FunStats::memes},
    {"facesCovered"_L1, &FunStats::facesCovered},
    {"stickers"_L1, &FunStats::stickers},
    {"shares"_L1, &FunStats::shares},
    {"xp"_L1, &FunStats::xp},
    {"bestStreak"_L1, &FunStats::bestStreak},
}};

constexpr qint64 referenceDate = 978'307'200'000; // 2001 in milliseconds since 1970.

bool read(const QJsonValue& json, qint64& number)
{
    number = json.toInteger(-1); // Also for what is no whole number.
    return number >= 0 && number <= FunStats::most;
}

bool read(const QJsonValue& json, QString& text)
{
    text = json.toString();
    return json.isString();
}

bool read(const QJsonValue& json, QStringList& texts)
{
    const auto array = json.toArray();
    for (const auto& element : array)
        if (!read(element, texts.emplaceBack()))
            return false;
    return json.isArray();
}

bool read(const QJsonValue& json, QMap<QString, qint64>& numbers)
{
    const auto object = json.toObject();
    for (auto member = object.begin(); member != object.end(); ++member)
        if (!read(member.value(), numbers[member.key()]))
            return false;
    return json.isObject();
}

bool read(const QJsonValue& json, std::optional<QDateTime>& date)
{
    if (json.isUndefined() || json.isNull())
        return true;
    const double milliseconds = std::round(json.toDouble() * 1000);
    if (!json.isDouble() || std::abs(milliseconds) > double(FunStats::most))
        return false;
    date = QDateTime::fromMSecsSinceEpoch(referenceDate + qint64(milliseconds), Qt::UTC);
    return true;
}

} // namespace

QByteArray FunStats::toJson() const
{
    QJsonObject perDay;
    for (auto day = days.begin(); day != days.end(); ++day)
        perDay.insert(day.key(), day.value());
    QJsonObject object {{u"days"_s, perDay}, {u"unlocked"_s, QJsonArray::fromStringList(unlocked)},
        {u"petName"_s, petName}};
    for (const auto& [key, value] : counters)
        object.insert(key, this->*value);
    if (lastCapture)
        object.insert(
            u"lastCapture"_s, double(lastCapture->toMSecsSinceEpoch() - referenceDate) / 1000);
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

std::optional<FunStats> FunStats::fromJson(const QByteArray& text)
{
    const auto object = QJsonDocument::fromJson(text).object(); // Empty where there is none.
    FunStats stats;
    for (const auto& [key, value] : counters)
        if (!read(object.value(key), stats.*value))
            return std::nullopt;
    const bool isComplete = read(object.value("days"_L1), stats.days)
        && read(object.value("unlocked"_L1), stats.unlocked)
        && read(object.value("petName"_L1), stats.petName)
        && read(object.value("lastCapture"_L1), stats.lastCapture);
    return isComplete ? std::optional(std::move(stats)) : std::nullopt;
}
