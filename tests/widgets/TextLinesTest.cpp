// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/TextLines.h"

#include <QFontMetrics>
#include <QGuiApplication>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(TextLinesTest, keepsWithinItsLinesAndTheirWidth)
{
    const QFont font = QGuiApplication::font();
    const QFontMetrics metrics(font);
    constexpr int width = 200;
    struct Case {
        QString text;
        bool isCut;
    };
    for (const auto& [text, isCut] :
        {Case {u"Short."_s, false}, Case {u"Some words that need a second line."_s, false},
            Case {u"Many words. "_s.repeated(40), true},
            Case {u"/one/endless/path"_s.repeated(20), true},
            Case {u"Lines\nof a message that\nhas its own."_s, false}}) {
        SCOPED_TRACE(text.toStdString());
        const auto lines = TextLines::fitting(text, font, width, 3);
        EXPECT_LE(lines.size(), 3);
        for (const QString& line : lines)
            EXPECT_LE(metrics.horizontalAdvance(line), width);
        EXPECT_EQ(lines.last().endsWith(u'…'), isCut);
        if (!isCut) {
            EXPECT_EQ(lines.join(u' '), text.simplified());
        }
    }
}
