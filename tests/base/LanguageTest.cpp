// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "base/Language.h"
#include "base/Words.h"

#include <gtest/gtest.h>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// A program that is told once what its user wants to read.
struct Program {
    explicit Program(QStringList languages)
        : wanted(std::move(languages))
    {
    }

    QStringList wanted;
    std::array<char, 1> name {};
    std::array<char*, 2> arguments {name.data(), nullptr};
    int count = 1;
    QCoreApplication application {count, arguments.data()};
    QLocale language = Language::install(wanted);
};

} // namespace

TEST(LanguageTest, speaksTheFirstLanguageThatItKnows)
{
    struct Case {
        QStringList wanted;
        QLocale::Language spoken;
        QString text;
    };
    for (const auto& [wanted, spoken, text] : {
             Case {{u"de-DE"_s, u"en-US"_s}, QLocale::German, u"Gestern"_s},
             Case {{u"de-AT"_s}, QLocale::German, u"Gestern"_s},
             Case {{u"tlh"_s, u"de"_s}, QLocale::German, u"Gestern"_s},
             Case {{u"en-GB"_s, u"de"_s}, QLocale::English, u"Yesterday"_s},
             Case {{u"C"_s, u"de"_s}, QLocale::English, u"Yesterday"_s},
             Case {{u"tlh"_s}, QLocale::English, u"Yesterday"_s},
             Case {{}, QLocale::English, u"Yesterday"_s},
         }) {
        const Program program(wanted);
        EXPECT_EQ(program.language.language(), spoken) << wanted.join(u' ').toStdString();
        EXPECT_EQ(Words::tr("Yesterday"), text) << wanted.join(u' ').toStdString();
    }
}

TEST(LanguageTest, countsAsTheLanguageDoes)
{
    const auto found = [](int lines) {
        return lines == 1 ? Words::tr("Text copied — 1 line")
                          : Words::tr("Text copied — %n lines", nullptr, lines);
    };
    {
        const Program program({});
        EXPECT_EQ(found(1), u"Text copied — 1 line"_s);
        EXPECT_EQ(found(3), u"Text copied — 3 lines"_s);
    }
    const Program program({u"de"_s});
    EXPECT_EQ(found(1), u"Text kopiert\u00a0– 1 Zeile"_s);
    EXPECT_EQ(found(3), u"Text kopiert\u00a0– 3 Zeilen"_s);
}

/// The toolkit's buttons, where its translations are installed.
TEST(LanguageTest, hasTheToolkitSpeakIt)
{
    const Program program({u"de"_s});
    const QString cancel = QCoreApplication::translate("QPlatformTheme", "Cancel");
    if (cancel == u"Cancel"_s)
        GTEST_SKIP() << "The toolkit's translations are not installed.";
    EXPECT_EQ(cancel, u"Abbrechen"_s);
}
