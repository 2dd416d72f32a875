// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/platform/TextCorpus.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <numeric>
#include <random>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr const char16_t* words[] {u"about", u"account", u"after", u"again", u"always", u"amount",
    u"answer", u"attached", u"because", u"before", u"below", u"between", u"bottle", u"browser",
    u"building", u"button", u"calendar", u"careful", u"change", u"choose", u"closed", u"coffee",
    u"copy", u"copied", u"customer", u"default", u"delete", u"desktop", u"different", u"during",
    u"earlier", u"editor", u"every", u"example", u"export", u"file", u"first", u"folder", u"for",
    u"from", u"garden", u"have", u"height", u"history", u"image", u"important", u"install",
    u"invoice", u"island", u"journey", u"keyboard", u"kitchen", u"language", u"later", u"length",
    u"letter", u"library", u"light", u"little", u"made", u"meeting", u"message", u"minute",
    u"monday", u"morning", u"network", u"never", u"notes", u"nothing", u"number", u"offer",
    u"office", u"often", u"open", u"option", u"other", u"package", u"paper", u"people", u"picture",
    u"please", u"preview", u"project", u"question", u"quick", u"quiet", u"recent", u"region",
    u"report", u"request", u"review", u"river", u"save", u"screen", u"search", u"select", u"server",
    u"settings", u"shortcut", u"should", u"simple", u"space", u"station", u"street", u"summer",
    u"system", u"table", u"that", u"their", u"there", u"through", u"today", u"together", u"under",
    u"update", u"until", u"usually", u"value", u"version", u"waiting", u"water", u"weather",
    u"week", u"where", u"which", u"while", u"window", u"winter", u"with", u"without", u"world",
    u"would", u"writing", u"yellow", u"yesterday", u"zoom"};

class Author final {
public:
    explicit Author(quint32 seed)
        : m_random(seed)
    {
    }

    QString line()
    {
        switch (below(10)) {
        case 0:
            return labels();
        case 1:
            return u"Total: $%1,%2.%3 (incl. %4% tax)"_s.arg(
                digits(1), digits(3), digits(2), digits(2));
        case 2:
            return u"https://www.example.org/%1/%2?page=%3"_s.arg(word(), word(), digits(2));
        case 3:
            return u"%1 %2, 20%3 at %4:%5 - %6 items"_s.arg(capital(), digits(2), digits(2))
                .arg(10 + below(10))
                .arg(10 + below(50))
                .arg(digits(1));
        case 4:
            return u"%1.%2@example.com, room %3"_s.arg(word(), word(), digits(3));
        case 5:
            return u"if (%1 == %2) { return %3(\"%4\"); }"_s.arg(word(), digits(2), word(), word());
        default:
            return sentence(6 + below(6));
        }
    }

private:
    int below(int limit) { return int(m_random() % quint32(limit)); }
    QString word() { return QString::fromUtf16(words[below(int(std::size(words)))]); }

    QString capital()
    {
        QString text = word();
        text[0] = text[0].toUpper();
        return text;
    }

    QString digits(int count)
    {
        QString text(1, QChar(u'1' + below(9)));
        while (text.size() < count)
            text += QChar(u'0' + below(10));
        return text;
    }

    QString labels()
    {
        QStringList all;
        while (all.size() < 5)
            all << capital();
        return all.join(u' ');
    }

    QString sentence(int count)
    {
        QString text = capital();
        for (int i = 1; i < count; ++i) {
            static constexpr const char16_t* marks[] {u", ", u"; ", u" and ", u" I ", u"'s "};
            const int mark = below(30);
            text += mark < int(std::size(marks)) ? QString::fromUtf16(marks[mark]) : u" "_s;
            text += word();
        }
        static constexpr char16_t ends[] {u'.', u'.', u'.', u'?', u'!', u':'};
        return text + ends[below(int(std::size(ends)))];
    }

    std::mt19937 m_random;
};

/// The lines without spaces that nobody sees.
QString tidied(const QString& text)
{
    QStringList kept;
    for (const auto& line : text.split(u'\n'))
        if (const QString tidy = line.simplified(); !tidy.isEmpty())
            kept << tidy;
    return kept.join(u'\n');
}

} // namespace

QStringList TextCorpus::lines(int count, quint32 seed)
{
    Author author(seed);
    QStringList all;
    while (all.size() < count)
        all << author.line();
    return all;
}

QImage TextCorpus::page(const QStringList& lines, const Look& look)
{
    QFont font(look.font);
    font.setPixelSize(qRound(look.points * look.scale));
    const QFontMetricsF metrics(font);
    double width = 0;
    for (const auto& line : lines)
        width = std::max(width, metrics.horizontalAdvance(line));
    const double room = 16 * look.scale, step = metrics.height() * 1.35;
    QImage image(
        int(width + 2 * room), int(double(lines.size()) * step + 2 * room), QImage::Format_RGB32);
    image.fill(look.dark ? QColor(30, 30, 34) : QColor(Qt::white));
    QPainter painter(&image);
    painter.setFont(font);
    painter.setPen(look.dark ? QColor(220, 220, 225) : QColor(30, 30, 30));
    double y = room + metrics.ascent();
    for (const auto& line : lines) {
        painter.drawText(QPointF(room, y), line);
        y += step;
    }
    return image;
}

int TextCorpus::errors(const QString& read, const QString& expected)
{
    const QString a = tidied(read), b = tidied(expected);
    std::vector<int> row(std::size_t(b.size()) + 1);
    std::iota(row.begin(), row.end(), 0);
    for (qsizetype i = 0; i < a.size(); ++i) {
        int diagonal = std::exchange(row[0], int(i) + 1);
        for (qsizetype j = 0; j < b.size(); ++j) {
            const auto at = std::size_t(j);
            const int replaced = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[at + 1];
            row[at + 1] = std::min({row[at] + 1, diagonal + 1, replaced});
        }
    }
    return row.back();
}
