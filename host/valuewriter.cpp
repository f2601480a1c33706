#include "host/value.h"

#include "host/valueblocks.h"

#include <cmath>

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

namespace kql
{
namespace Json
{

namespace
{

using Writer = rapidjson::PrettyWriter<rapidjson::StringBuffer>;

void write(Writer& writer, const Value& value);

void writeArray(Writer& writer, const Value& array)
{
    writer.StartArray();
    for (int index = 0, count = array.size(); index < count; ++index)
        write(writer, array[index]);
    writer.EndArray();
}

void writeObject(Writer& writer, const Value& object)
{
    writer.StartObject();
    for (int position = 0, count = object.size(); position < count; ++position) {
        const std::string_view name = object.memberName(position);
        writer.Key(name.data(), rapidjson::SizeType(name.size()));
        write(writer, object.memberValue(position));
    }
    writer.EndObject();
}

void writeReal(Writer& writer, double number)
{
    if (std::isfinite(number))
        writer.Double(number);
    else
        writer.Null();
}

void write(Writer& writer, const Value& value)
{
    switch (value.type()) {
    case ValueType::Null:
        writer.Null();
        break;
    case ValueType::Int:
        writer.Int64(value.asInt64());
        break;
    case ValueType::Real:
        writeReal(writer, value.asDouble());
        break;
    case ValueType::String:
        writer.String(value.asView().data(), rapidjson::SizeType(value.asView().size()));
        break;
    case ValueType::Bool:
        writer.Bool(value.asBool());
        break;
    case ValueType::Array:
        writeArray(writer, value);
        break;
    case ValueType::Object:
        writeObject(writer, value);
        break;
    }
}

rapidjson::StringBuffer styled(const Value& value)
{
    rapidjson::StringBuffer buffer;
    Writer writer(buffer);
    write(writer, value);
    return buffer;
}

} // namespace

std::string Value::toStyledString() const
{
    const rapidjson::StringBuffer buffer = styled(*this);
    return {buffer.GetString(), buffer.GetSize()};
}

QString Value::toStyledText() const
{
    const rapidjson::StringBuffer buffer = styled(*this);
    return QString::fromUtf8(buffer.GetString(), int(buffer.GetSize()));
}

} // namespace Json
} // namespace kql
