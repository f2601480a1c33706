#include "host/json/value.h"

#include "host/api/limits.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

namespace kql
{
namespace Json
{

namespace
{

constexpr std::size_t kDeepestIndent = std::size_t(4) * Limits::kIndentedLevels;

/// What a writer writes, with the limits that Value::toStyledString() tells.
class BoundedText : public rapidjson::StringBuffer
{
public:
    /// Makes room. Of a text that becomes too long what there was is forgotten.
    void reserve(std::size_t count)
    {
        if (GetSize() + count > std::size_t(Limits::kStyledText)) {
            m_isTooLong = true;
            Clear();
        }
        Reserve(count);
    }
    std::string_view utf8() const
    {
        return m_isTooLong ? std::string_view() : std::string_view(GetString(), GetSize());
    }
    QString utf16() const { return QString::fromUtf8(utf8().data(), int(utf8().size())); }

private:
    bool m_isTooLong = false;
};

// The writer's own versions of these know no bounds.

void PutReserve(BoundedText& text, std::size_t count)
{
    text.reserve(count);
}

void PutUnsafe(BoundedText& text, char c)
{
    text.PutUnsafe(c);
}

void PutN(BoundedText& text, char c, std::size_t count)
{
    count = std::min(count, kDeepestIndent);
    text.reserve(count);
    std::memset(text.Push(count), c, count);
}

/// Counts what a writer writes as characters of a QString, and keeps none of it.
struct TextMeter {
    using Ch = char;
    void Put(char c)
    {
        const auto byte = static_cast<unsigned char>(c);
        const bool isFirst = (byte & 0xC0) != 0x80;
        length += isFirst + (byte >= 0xF0); // four bytes are two characters
    }
    void Flush() {}

    qint64 length = 0;
};

void PutN(TextMeter& meter, char, std::size_t count)
{
    meter.length += qint64(std::min(count, kDeepestIndent));
}

template<typename Writer>
void write(const Node& node, Writer& writer)
{
    if (node.IsArray()) {
        writer.StartArray();
        for (const Node* element = node.Begin(); element != node.End(); ++element)
            write(*element, writer);
        writer.EndArray();
    } else if (node.IsObject()) {
        writer.StartObject();
        const auto end = node.MemberBegin() + Members::count(node);
        for (auto member = node.MemberBegin(); member != end; ++member) {
            writer.Key(member->name.GetString(), member->name.GetStringLength());
            write(member->value, writer);
        }
        writer.EndObject();
    } else if (node.IsDouble() && !std::isfinite(node.GetDouble())) {
        writer.Null();
    } else {
        node.Accept(writer);
    }
}

} // namespace

std::string Value::toStyledString() const
{
    BoundedText text;
    rapidjson::PrettyWriter<BoundedText> writer(text);
    write(m_node, writer);
    return std::string(text.utf8());
}

QString Value::toStyledText() const
{
    BoundedText text;
    rapidjson::PrettyWriter<BoundedText> writer(text);
    write(m_node, writer);
    return text.utf16();
}

qint64 Value::styledLength() const
{
    TextMeter meter;
    rapidjson::PrettyWriter<TextMeter> writer(meter);
    write(m_node, writer);
    return meter.length;
}

QString Value::toCompactText() const
{
    BoundedText text;
    rapidjson::Writer<BoundedText> writer(text);
    write(m_node, writer);
    return text.utf16();
}

} // namespace Json
} // namespace kql
