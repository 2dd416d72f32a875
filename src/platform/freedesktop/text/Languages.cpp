// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "platform/freedesktop/text/Languages.h"

#include "base/Words.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

const QString english = u"eng"_s;

constexpr qsizetype mostUsual = 3, mostOthers = 4;

QString modelOf(const QString& spoken)
{
    const QLocale locale(spoken);
    const auto script = locale.script();
    switch (locale.language()) {
    case QLocale::C:
        return english;
    case QLocale::Chinese:
        return script == QLocale::TraditionalHanScript ? u"chi_tra"_s : u"chi_sim"_s;
    case QLocale::NorwegianBokmal:
    case QLocale::NorwegianNynorsk:
        return u"nor"_s;
    case QLocale::Serbian:
        return script == QLocale::LatinScript ? u"srp_latn"_s : u"srp"_s;
    case QLocale::Uzbek:
        return script == QLocale::CyrillicScript ? u"uzb_cyrl"_s : u"uzb"_s;
    case QLocale::Azerbaijani:
        return script == QLocale::CyrillicScript ? u"aze_cyrl"_s : u"aze"_s;
    default:
        return QLocale::languageToCode(locale.language(), QLocale::ISO639Part2T);
    }
}

/// English first: it is everywhere on screens.
QStringList modelsOf(const QStringList& spoken)
{
    QStringList models {english};
    for (const auto& each : spoken)
        models << modelOf(each);
    models.removeDuplicates();
    return models;
}

bool readsText(const QString& model)
{
    static const QStringList special {u"osd"_s, u"equ"_s, u"snum"_s};
    return !special.contains(model) && !model.endsWith(u"_vert"_s);
}

} // namespace

Languages::Choice Languages::choose(const QStringList& spoken, const QStringList& installed)
{
    Choice choice;
    for (const auto& model : modelsOf(spoken))
        if (installed.contains(model) && choice.usual.size() < mostUsual)
            choice.usual << model;
    for (const auto& model : installed)
        if (readsText(model) && !choice.usual.contains(model) && choice.others.size() < mostOthers)
            choice.others << model;
    if (choice.usual.isEmpty() && !choice.others.isEmpty())
        choice.usual << choice.others.takeFirst();
    return choice;
}

QStringList Languages::notInstalled(const QStringList& spoken, const QStringList& installed)
{
    auto models = modelsOf(spoken);
    models.removeIf([&](const QString& model) { return installed.contains(model); });
    return models;
}

QString Languages::missing(const QStringList& spoken)
{
    QStringList packages;
    for (auto model : modelsOf(spoken))
        packages << u"tesseract-ocr-"_s + model.replace(u'_', u'-');
    return Words::tr(
        "No language that text recognition knows is installed; install the Debian package %1.")
        .arg(packages.join(Words::tr(" or ", "between packages")));
}
