// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "bench/SampleText.h"

#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr const char16_t* words[] {u"about", u"after", u"allocator", u"amount", u"answer", u"area",
    u"backwards", u"because", u"before", u"begin", u"between", u"border", u"bottom", u"buffer",
    u"capacity", u"change", u"character", u"colour", u"column", u"constant", u"container", u"copy",
    u"count", u"current", u"default", u"different", u"display", u"distance", u"element", u"empty",
    u"every", u"exception", u"first", u"forward", u"front", u"function", u"given", u"grow",
    u"height", u"index", u"insert", u"iterator", u"keep", u"large", u"last", u"length", u"letter",
    u"limit", u"list", u"memory", u"middle", u"moment", u"move", u"never", u"next", u"nothing",
    u"number", u"object", u"often", u"order", u"other", u"pair", u"picture", u"place", u"point",
    u"position", u"previous", u"quick", u"range", u"reader", u"reference", u"request", u"resize",
    u"result", u"return", u"river", u"sequence", u"several", u"shift", u"simple", u"size", u"small",
    u"space", u"start", u"storage", u"string", u"system", u"table", u"through", u"together",
    u"type", u"under", u"unless", u"until", u"usual", u"value", u"vector", u"version", u"where",
    u"which", u"width", u"window", u"without", u"word", u"writer", u"zone"};

class Author final {
public:
    explicit Author(quint32 seed)
        : m_random(seed)
    {
    }

    int below(int limit) { return int(m_random() % quint32(limit)); }
    QString word() { return QString::fromUtf16(words[below(int(std::size(words)))]); }

    QString capitalWord()
    {
        QString text = word();
        text[0] = text[0].toUpper();
        return text;
    }

    QString name() { return below(2) ? word() : word() + capitalWord(); }
    QString type() { return below(3) ? capitalWord() : u"int"_s; }
    QString number() { return QString::number(below(2) ? below(16) : below(5000)); }

    QString expression()
    {
        switch (below(5)) {
        case 0:
            return name() + u" + "_s + number();
        case 1:
            return name() + u"."_s + name() + u"()"_s;
        case 2:
            return name() + u"("_s + name() + u", "_s + number() + u")"_s;
        case 3:
            return u"\""_s + word() + u" "_s + word() + u" "_s + word() + u"\""_s;
        default:
            return u"this->"_s + name() + u"["_s + name() + u" - 1]"_s;
        }
    }

    QString sentence(int count)
    {
        QString text = capitalWord();
        for (int i = 1; i < count; ++i)
            text += (below(12) ? u" "_s : u", "_s) + word();
        return text + u"."_s;
    }

private:
    std::mt19937 m_random;
};

QString statement(Author& author)
{
    switch (author.below(5)) {
    case 0:
        return u"const auto "_s + author.name() + u" = "_s + author.expression() + u";"_s;
    case 1:
        return author.name() + u" = "_s + author.expression() + u";"_s;
    case 2:
        return u"if ("_s + author.expression() + u" == "_s + author.name() + u")"_s;
    case 3:
        return u"    "_s + author.name() + u"("_s + author.expression() + u", "_s
            + author.expression() + u");"_s;
    default:
        return u"std::move("_s + author.name() + u".begin(), "_s + author.name() + u".end(), "_s
            + author.name() + u");"_s;
    }
}

} // namespace

QStringList SampleText::code(int lines, quint32 seed)
{
    Author author(seed);
    QStringList code;
    while (code.size() < lines) {
        const QString in = u"    "_s;
        code += in + u"/**"_s;
        for (int i = author.below(4) + 1; i > 0; --i)
            code += in + u" *  "_s + author.sentence(6 + author.below(5));
        code += in + u" *  @param  "_s + author.name() + u"  "_s + author.sentence(5);
        code += in + u" */"_s;
        code += in + author.type() + u" "_s + author.name() + u"(const "_s + author.type() + u"& "_s
            + author.name() + u", int "_s + author.name() + u")"_s;
        code += in + u"{"_s;
        for (int i = author.below(9) + 1; i > 0; --i)
            code += in + in + statement(author);
        code += in + in + u"return "_s + author.expression() + u"; // "_s + author.sentence(3);
        code += in + u"}"_s;
        code += QString();
    }
    return code.first(lines);
}

QString SampleText::prose(int words, quint32 seed)
{
    Author author(seed);
    QString text;
    for (int i = 0; i < words;) {
        const int length = 5 + author.below(14);
        text += author.sentence(length) + u" "_s;
        i += length;
    }
    return text;
}
