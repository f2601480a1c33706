#include "tools/rulesctl/diff/change.h"

using kql::Json::Value;

namespace
{

const char* nameOf(Change::Kind kind)
{
    switch (kind) {
    case Change::Kind::Added:
        return "added";
    case Change::Kind::Removed:
        return "removed";
    case Change::Kind::Renamed:
        return "renamed";
    case Change::Kind::Moved:
        return "moved";
    case Change::Kind::Enabled:
        return "enabled";
    case Change::Kind::Attribute:
        return "attribute";
    case Change::Kind::Figure:
        return "figure";
    case Change::Kind::Other:
        break;
    }
    return "other";
}

Value textOrNull(const QString& text)
{
    return text.isEmpty() ? Value() : Value(text);
}

template<typename Number>
Value numberOrNull(const std::optional<Number>& number)
{
    return number ? Value(*number) : Value();
}

} // namespace

Value Change::toJson() const
{
    Value json(kql::Json::ValueType::Object);
    json["kind"] = Value(nameOf(kind));
    json["scene"] = textOrNull(scene);
    json["name"] = textOrNull(name);
    json["a"] = numberOrNull(a);
    json["b"] = numberOrNull(b);
    json["key"] = textOrNull(key);
    json["caption"] = textOrNull(caption);
    json["from"] = from;
    json["to"] = to;
    json["by"] = numberOrNull(by);
    json["pointer"] = kind == Kind::Other ? Value(pointer) : Value();
    json["text"] = Value(text);
    return json;
}
