// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryItem.h"

#include "base/Words.h"

#include <QUuid>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

const QDateTime epoch(QDate(2001, 1, 1), QTime(0, 0), Qt::UTC);

} // namespace

QDateTime HistoryItem::time() const
{
    constexpr double longest = 1e12; // Some 30,000 years.
    return std::abs(date) < longest ? epoch.addMSecs(std::llround(date * 1000)) : QDateTime();
}

QString HistoryItem::appName() const
{
    return app == "Screen"_L1 ? Words::tr("Screen") : app;
}

QSizeF HistoryItem::points() const
{
    const bool isUsable = std::isfinite(scale) && scale > 0;
    return QSizeF(width, height) / (isUsable ? scale : 1);
}

size_t qHash(const HistoryItem& item, size_t seed)
{
    seed = qHashMulti(seed, item.id, item.date, item.path, item.width, item.height, item.scale,
        item.app, item.cached);
    for (const auto& other : item.others)
        seed = qHashMulti(seed, other.name, other.json);
    return seed;
}

double historyDate(const QDateTime& time)
{
    return double(epoch.msecsTo(time)) / 1000;
}

QString newHistoryId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

bool isHistoryId(QStringView id)
{
    constexpr QStringView form = u"XXXXXXXX-XXXX-XXXX-XXXX-XXXXXXXXXXXX";
    const auto fits = [](QChar character, QChar wanted) {
        const bool isDigit
            = (character >= u'0' && character <= u'9') || (character >= u'A' && character <= u'F');
        return wanted == u'-' ? character == u'-' : isDigit;
    };
    return id.size() == form.size() && std::equal(id.begin(), id.end(), form.begin(), fits);
}
