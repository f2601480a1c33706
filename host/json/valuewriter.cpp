#include "host/json/value.h"

#include "host/api/textmeter.h"
#include "host/json/textstream.h"
#include "host/json/valueblocks.h"

#include <cmath>

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

namespace kql
{
namespace Json
{

using Utf16 = rapidjson::UTF16<TextStream::Ch>;

/// Tells a writer of any kind of text what a document holds.
template<typename Writer>
class ValueWriter
{
public:
    explicit ValueWriter(Writer& writer) : m_writer(writer) {}

    void write(const Value& value)
    {
        switch (value.m_bytes.kind) {
        case Value::Kind::Null:
            m_writer.Null();
            break;
        case Value::Kind::Bool:
            m_writer.Bool(value.load<bool>());
            break;
        case Value::Kind::Int:
            m_writer.Int64(value.load<qint64>());
            break;
        case Value::Kind::LargeInt:
            m_writer.Uint64(value.load<quint64>());
            break;
        case Value::Kind::Real:
            writeReal(value.load<double>());
            break;
        case Value::Kind::ShortText:
        case Value::Kind::LongText:
            m_writer.String(value.asView().data(), length(value));
            break;
        case Value::Kind::Array:
            writeArray(value.items());
            break;
        case Value::Kind::Object:
            writeObject(value.members());
            break;
        }
    }

private:
    static rapidjson::SizeType length(const Value& text)
    {
        return rapidjson::SizeType(text.asView().size());
    }

    void writeReal(double number)
    {
        if (std::isfinite(number))
            m_writer.Double(number);
        else
            m_writer.Null();
    }

    void writeArray(const Items& items)
    {
        m_writer.StartArray();
        for (const Value& item : items)
            write(item);
        m_writer.EndArray();
    }

    void writeObject(const MemberBlock* members)
    {
        m_writer.StartObject();
        if (members) {
            for (const Member& member : *members) {
                m_writer.Key(member.name.asView().data(), length(member.name));
                write(member.value);
            }
        }
        m_writer.EndObject();
    }

    Writer& m_writer;
};

std::string Value::toStyledString() const
{
    rapidjson::StringBuffer text;
    rapidjson::PrettyWriter<rapidjson::StringBuffer> writer(text);
    ValueWriter(writer).write(*this);
    return {text.GetString(), text.GetSize()};
}

QString Value::toStyledText() const
{
    TextStream text;
    rapidjson::PrettyWriter<TextStream, rapidjson::UTF8<>, Utf16> writer(text);
    ValueWriter(writer).write(*this);
    return text.take();
}

qint64 Value::styledLength() const
{
    TextMeter meter;
    rapidjson::PrettyWriter<TextMeter, rapidjson::UTF8<>, Utf16> writer(meter);
    ValueWriter(writer).write(*this);
    return meter.length();
}

QString Value::toCompactText() const
{
    TextStream text;
    rapidjson::Writer<TextStream, rapidjson::UTF8<>, Utf16> writer(text);
    ValueWriter(writer).write(*this);
    return text.take();
}

} // namespace Json
} // namespace kql
