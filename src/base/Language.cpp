// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

// A resource can only be made known from outside of namespaces.
static void makeTranslationsKnown()
{
    Q_INIT_RESOURCE(translations);
}

namespace {

/// @return whether there is such a translation.
bool installFrom(const QString& folder, const QString& name, const QLocale& locale)
{
    auto translator = std::make_unique<QTranslator>(QCoreApplication::instance());
    return translator->load(name + u'_' + locale.name(), folder)
        && QCoreApplication::installTranslator(translator.release());
}

} // namespace

QLocale Language::install(const QStringList& wanted)
{
    makeTranslationsKnown();
    for (const QString& language : wanted) {
        const QLocale locale(language);
        if (locale.language() == QLocale::English || language == "C"_L1)
            break; // Languages after it are less wanted.
        if (!installFrom(u":/translations"_s, u"pixmallow"_s, locale))
            continue;
        installFrom(QLibraryInfo::path(QLibraryInfo::TranslationsPath), u"qtbase"_s, locale);
        return locale;
    }
    return {QLocale::English};
}
