// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/PrefKeys.h"

#include <algorithm>

namespace {

QDateTime distantPast()
{
    return QDateTime(QDate(1, 1, 1), QTime(0, 0), Qt::UTC);
}

bool isInteger(const QJsonValue& value)
{
    return value.toInt(0) == value.toInt(1); // The answer is what was passed if it is none.
}

} // namespace

QVariant AnyPrefKey::defaultValue() const
{
    if (type.id() == QMetaType::QDateTime)
        return distantPast();
    return std::visit(
        [](auto value) -> QVariant {
            if constexpr (std::is_same_v<decltype(value), const char*>)
                return QString::fromLatin1(value);
            else if constexpr (std::is_same_v<decltype(value), std::monostate>)
                return {};
            else
                return value;
        },
        standard);
}

QVariant AnyPrefKey::fromJson(const QJsonValue& value) const
{
    switch (type.id()) {
    case QMetaType::Bool:
        return value.isBool() ? value.toBool() : QVariant();
    case QMetaType::Int:
        return isInteger(value) ? value.toInt() : QVariant();
    case QMetaType::Double:
        return value.isDouble() ? value.toDouble() : QVariant();
    case QMetaType::QString:
        return value.isString() ? value.toString() : QVariant();
    default:
        const auto date = QDateTime::fromString(value.toString(), Qt::ISODateWithMs);
        return date.isValid() ? date.toUTC() : QVariant();
    }
}

QJsonValue AnyPrefKey::toJson(const QVariant& value) const
{
    if (type.id() == QMetaType::QDateTime)
        return value.toDateTime().toUTC().toString(Qt::ISODateWithMs);
    return QJsonValue::fromVariant(value);
}

const AnyPrefKey* PrefTable::find(QStringView name) const
{
    const auto row = std::ranges::find_if(
        all(), [&](const AnyPrefKey* key) { return name == QLatin1String(key->name); });
    return row == all().end() ? nullptr : *row;
}

const PrefKey<QString>* PrefKeys::hotkey(QStringView kind) const
{
    for (const auto* key : {&hkRegion, &hkWindow, &hkScreen, &hkDelayed, &hkText})
        if (kind == QLatin1String(key->name).mid(3)) // After "hk.".
            return key;
    return nullptr;
}
