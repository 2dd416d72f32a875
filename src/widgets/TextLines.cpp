// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "widgets/TextLines.h"

#include <QFontMetrics>
#include <QTextLayout>

QStringList TextLines::fitting(const QString& text, const QFont& font, int width, int mostLines)
{
    const QString words = text.simplified();
    QTextLayout layout(words, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const int start = line.textStart();
        if (lines.size() + 1 == mostLines) {
            const QString rest = words.mid(start);
            lines << QFontMetrics(font).elidedText(rest, Qt::ElideRight, width);
            break;
        }
        lines << words.mid(start, line.textLength()).trimmed();
    }
    layout.endLayout();
    return lines;
}
