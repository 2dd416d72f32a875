// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/x11/DisplayScale.h"

#include <QList>
#include <QStringList>

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

std::optional<double> positive(QStringView text)
{
    bool valid = false;
    const double value = text.trimmed().toDouble(&valid);
    return valid && value > 0 ? std::optional(value) : std::nullopt;
}

std::optional<double> screenFactor(const QString& factors, const QString& name, qsizetype index)
{
    const auto entries = factors.split(u';');
    for (qsizetype i = 0; i < entries.size(); ++i) {
        const auto equals = entries[i].lastIndexOf(u'=');
        const bool meant = equals < 0 ? i == index : entries[i].left(equals) == name;
        if (meant)
            return positive(QStringView(entries[i]).mid(equals + 1));
    }
    return std::nullopt;
}

std::optional<double> fontScale(const QByteArray& resources)
{
    constexpr double usualDotsPerInch = 96;
    for (const auto& line : resources.split('\n'))
        if (line.startsWith("Xft.dpi:"))
            if (const auto dpi = positive(QString::fromLatin1(line.mid(8))))
                return *dpi / usualDotsPerInch;
    return std::nullopt;
}

} // namespace

ScaleSettings ScaleSettings::ofEnvironment(QByteArray resources)
{
    return {qEnvironmentVariable("QT_SCALE_FACTOR"),
        qEnvironmentVariable("QT_SCREEN_SCALE_FACTORS"), std::move(resources)};
}

double ScaleSettings::scaleOf(const QString& screenName, qsizetype screenIndex) const
{
    auto scale = screenFactor(screenFactors, screenName, screenIndex);
    if (!scale)
        scale = fontScale(resources);
    return std::max(0.1, scale.value_or(1) * positive(globalFactor).value_or(1));
}
