// SPDX-FileCopyrightText: The Pixmallow authors
// SPDX-License-Identifier: MIT
#include "history/HistoryIndex.h"

#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

using Writer = rapidjson::Writer<rapidjson::StringBuffer>;
using rapidjson::SizeType;

enum class Member { Id, Date, Path, Width, Height, Scale, App, Cached, Other };

constexpr std::array<std::string_view, 8> memberNames {
    "id", "date", "path", "width", "height", "scale", "app", "cached"};

/// Tried first is the one that usually comes next.
Member memberNamed(std::string_view name, Member before)
{
    const std::size_t next = (std::size_t(before) + 1) % memberNames.size();
    if (name == memberNames[next])
        return Member(next);
    const auto* found = std::find(memberNames.begin(), memberNames.end(), name);
    return Member(found - memberNames.begin());
}

bool read(std::string_view text, double& value)
{
    const auto [end, error] = std::from_chars(text.begin(), text.end(), value);
    return error == std::errc() && end == text.end();
}

bool read(std::string_view text, int& value)
{
    const auto [end, error] = std::from_chars(text.begin(), text.end(), value);
    if (error == std::errc() && end == text.end())
        return true;
    double real = 0; // 100.0 and 1e2 are whole numbers, too.
    if (!read(text, real) || real != std::floor(real)
        || std::abs(real) > std::numeric_limits<int>::max())
        return false;
    value = int(real);
    return true;
}

/// Hears of each part of the text in turn; what returns false ends the reading. The values of
/// unknown members are written down again as they come by.
class IndexHandler final {
public:
    explicit IndexHandler(qsizetype textSize)
    {
        constexpr qsizetype usualEntry = 220; // Bytes.
        m_items.reserve(textSize / usualEntry);
    }
    QList<HistoryItem> takeItems() { return std::move(m_items); }

    // NOLINTBEGIN(readability-identifier-naming): the reader calls them by these names.
    bool Null() { return isOther() && ended(m_writer.Null()); }
    bool Bool(bool value)
    {
        if (isOther())
            return ended(m_writer.Bool(value));
        if (m_member != Member::Cached)
            return false;
        m_item.cached = value;
        return known();
    }
    bool RawNumber(const char* text, SizeType length, bool)
    {
        const std::string_view number(text, length);
        if (isOther())
            return ended(m_writer.RawValue(text, length, rapidjson::kNumberType));
        return readNumber(number) && known();
    }
    bool String(const char* text, SizeType length, bool)
    {
        if (isOther()) // Half a surrogate pair, written \udc00, makes no UTF-8.
            return QUtf8StringView(text, qsizetype(length)).isValidUtf8()
                && ended(m_writer.String(text, length));
        QString* target = stringOf(m_member);
        if (!target)
            return false;
        *target = m_member == Member::App ? shared({text, length})
                                          : QString::fromUtf8(text, qsizetype(length));
        return known();
    }
    bool StartArray()
    {
        if (m_depth == 0)
            return ++m_depth == 1;
        return isOther() && begun(m_writer.StartArray());
    }
    bool EndArray(SizeType)
    {
        if (m_depth == 1)
            return --m_depth == 0;
        return ended(m_writer.EndArray(), -1);
    }
    bool StartObject()
    {
        if (m_depth == 1) {
            m_item = {};
            m_seen = 0;
            return ++m_depth == 2;
        }
        return isOther() && begun(m_writer.StartObject());
    }
    bool Key(const char* text, SizeType length, bool)
    {
        if (m_depth > entryDepth)
            return QUtf8StringView(text, qsizetype(length)).isValidUtf8()
                && m_writer.Key(text, length);
        m_member = memberNamed({text, length}, m_member);
        if (m_member == Member::Other) {
            m_item.others.append({QString::fromUtf8(text, qsizetype(length)), {}});
            m_buffer.Clear();
            m_writer.Reset(m_buffer);
        }
        return true;
    }
    bool EndObject(SizeType)
    {
        if (m_depth > entryDepth)
            return ended(m_writer.EndObject(), -1);
        --m_depth;
        m_items.append(std::move(m_item));
        return m_seen == (1U << memberNames.size()) - 1;
    }

    // Numbers come as text.
    bool Int(int) { return false; }
    bool Uint(unsigned) { return false; }
    bool Int64(std::int64_t) { return false; }
    bool Uint64(std::uint64_t) { return false; }
    bool Double(double) { return false; }
    // NOLINTEND(readability-identifier-naming)

private:
    static constexpr int entryDepth = 2;

    bool isOther() const { return m_depth >= entryDepth && m_member == Member::Other; }
    bool known()
    {
        m_seen |= 1U << unsigned(m_member);
        return m_depth == entryDepth;
    }
    bool begun(bool written)
    {
        ++m_depth;
        return written;
    }
    bool ended(bool written, int step = 0)
    {
        m_depth += step;
        if (m_depth == entryDepth)
            m_item.others.last().json = {m_buffer.GetString(), qsizetype(m_buffer.GetSize())};
        return written;
    }
    QString* stringOf(Member member)
    {
        switch (member) {
        case Member::Id:
            return &m_item.id;
        case Member::Path:
            return &m_item.path;
        case Member::App:
            return &m_item.app;
        default:
            return nullptr;
        }
    }
    /// The same memory for all captures of a program: there are few of them.
    QString shared(std::string_view text)
    {
        constexpr std::size_t most = 32;
        const auto found = std::ranges::find(m_apps, text, &std::pair<std::string, QString>::first);
        if (found != m_apps.end())
            return found->second;
        const QString app = QString::fromUtf8(text.data(), qsizetype(text.size()));
        if (m_apps.size() < most)
            m_apps.emplace_back(text, app);
        return app;
    }
    bool readNumber(std::string_view text)
    {
        switch (m_member) {
        case Member::Date:
            return read(text, m_item.date);
        case Member::Width:
            return read(text, m_item.width);
        case Member::Height:
            return read(text, m_item.height);
        case Member::Scale:
            return read(text, m_item.scale);
        default:
            return false;
        }
    }

    QList<HistoryItem> m_items;
    HistoryItem m_item;
    std::vector<std::pair<std::string, QString>> m_apps;
    unsigned m_seen = 0; // One bit per known member.
    Member m_member = Member::Id; // Whose value comes next.
    int m_depth = 0; // Of arrays and objects around the next value.
    rapidjson::StringBuffer m_buffer;
    Writer m_writer {m_buffer};
};

void writeString(Writer& writer, const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    writer.String(utf8.constData(), SizeType(utf8.size()));
}

void writeNumber(Writer& writer, double value)
{
    constexpr double exact = 9007199254740992; // Up to here a whole number needs no ".0".
    if (value == std::floor(value) && std::abs(value) < exact)
        writer.Int64(std::int64_t(value));
    else
        writer.Double(value);
}

void write(Writer& writer, const HistoryItem& item)
{
    const auto key = [&](Member member) {
        const auto name = memberNames[std::size_t(member)];
        writer.Key(name.data(), SizeType(name.size()));
    };
    writer.StartObject();
    key(Member::Id);
    writeString(writer, item.id);
    key(Member::Date);
    writeNumber(writer, item.date);
    key(Member::Path);
    writeString(writer, item.path);
    key(Member::Width);
    writer.Int(item.width);
    key(Member::Height);
    writer.Int(item.height);
    key(Member::Scale);
    writeNumber(writer, item.scale);
    key(Member::App);
    writeString(writer, item.app);
    key(Member::Cached);
    writer.Bool(item.cached);
    for (const auto& other : item.others) {
        const QByteArray name = other.name.toUtf8();
        writer.Key(name.constData(), SizeType(name.size()));
        writer.RawValue(
            other.json.constData(), std::size_t(other.json.size()), rapidjson::kObjectType);
    }
    writer.EndObject();
}

} // namespace

std::optional<QList<HistoryItem>> HistoryIndex::parse(QByteArray text)
{
    // Iterative: a text of opening brackets must not use up the stack.
    constexpr unsigned flags = rapidjson::kParseInsituFlag | rapidjson::kParseIterativeFlag
        | rapidjson::kParseNumbersAsStringsFlag;
    const bool isWhole = !text.contains('\0'); // Where the reader would take the text to end.
    if (!isWhole || !QUtf8StringView(text).isValidUtf8())
        return std::nullopt;
    IndexHandler handler(text.size());
    text.append(15, '\0'); // It looks at 16 aligned bytes at once, so at some behind the text.
    rapidjson::InsituStringStream stream(text.data());
    rapidjson::Reader reader;
    if (!reader.Parse<flags>(stream, handler))
        return std::nullopt;
    return handler.takeItems();
}

QByteArray HistoryIndex::toJson(const QList<HistoryItem>& items)
{
    rapidjson::StringBuffer buffer(nullptr, std::size_t(items.size() + 1) * 256);
    Writer writer(buffer);
    writer.StartArray();
    for (const auto& item : items)
        write(writer, item);
    writer.EndArray();
    return {buffer.GetString(), qsizetype(buffer.GetSize())};
}
