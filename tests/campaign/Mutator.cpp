// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "tests/campaign/Mutator.h"

#include <array>
#include <cctype>

namespace {

/// The number, in ASCII, that stands at a place or after it; empty where there is none.
std::pair<qsizetype, qsizetype> numberFrom(const QByteArray& bytes, qsizetype place)
{
    while (place < bytes.size() && !std::isdigit(static_cast<unsigned char>(bytes[place])))
        ++place;
    qsizetype end = place;
    while (end < bytes.size() && std::isdigit(static_cast<unsigned char>(bytes[end])))
        ++end;
    return {place, end - place};
}

} // namespace

QByteArray Mutator::token()
{
    static constexpr std::array tokens {"null", "true", "[]", "{}", "{\"a\":[1]}", ",", "\"", "}",
        "]", ":", "=", ";", "\n[", "1e400", "-0.0", "2147483648", "9223372036854775808", "-1", "0",
        "NaN", "1e-5", "\"\\ud800\"", "\"\\u0000\"", "\xff\xfe", "\xf0\x9f\x99\x82", "%s%n",
        "../../../", "\r\n", "9999-12-31T23:59:60Z"};
    switch (below(4)) {
    case 0: // A length, at either end first.
        return QByteArray(int(1 + below(4)), char(below(2) ? 0xff : 0x7f));
    case 1:
        return QByteArray(int(1 + below(2000)), char(below(256)));
    default:
        return tokens[std::size_t(below(tokens.size()))];
    }
}

void Mutator::change(QByteArray& bytes, const QByteArray& other)
{
    const auto place = below(bytes.size() + 1), length = std::min(below(40), bytes.size() - place);
    switch (below(8)) {
    case 0:
        if (place < bytes.size())
            bytes[place] = char(bytes[place] ^ (1 << below(8)));
        break;
    case 1:
        bytes.replace(place, length, token());
        break;
    case 2:
        bytes.remove(place, length);
        break;
    case 3:
        bytes.insert(place, bytes.mid(below(bytes.size() + 1), below(200)));
        break;
    case 4:
        bytes.replace(place, length, other.mid(below(other.size() + 1), below(200)));
        break;
    case 5: {
        const auto [at, digits] = numberFrom(bytes, place);
        if (digits > 0)
            bytes.replace(at, digits, token());
        break;
    }
    case 6:
        for (qsizetype i = place; i < place + length; ++i)
            bytes[i] = char(m_random());
        break;
    default:
        if (below(4) == 0)
            bytes.truncate(place);
    }
}

QByteArray Mutator::mutated(const QList<QByteArray>& samples)
{
    QByteArray bytes = samples[below(samples.size())];
    const QByteArray& other = samples[below(samples.size())];
    for (auto changes = 1 + below(6); changes > 0; --changes)
        change(bytes, other);
    return bytes;
}
