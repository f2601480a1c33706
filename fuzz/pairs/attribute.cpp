#include "fuzz/pairs/attribute.h"

using kql::Json::Value;
using kql::Json::ValueType;

namespace
{

struct Part {
    std::string name;
    bool isList;
    bool isLast;
};

std::vector<Part> split(const std::string& path)
{
    std::vector<Part> parts;
    for (std::size_t at = 0; at <= path.size();) {
        const std::size_t end = std::min(path.find('.', at), path.size());
        std::string name = path.substr(at, end - at);
        const bool isList = name.size() > 2 && name.substr(name.size() - 2) == "[]";
        parts.push_back(
            {isList ? name.substr(0, name.size() - 2) : name, isList, end == path.size()});
        at = end + 1;
    }
    return parts;
}

} // namespace

Value* Attribute::fieldIn(Value& entry) const
{
    Value* at = &entry;
    for (const Part& part : split(path)) {
        at = at->find(part.name);
        if (at && part.isList && !part.isLast)
            at = at->isArray() && !at->empty() ? &(*at)[0] : nullptr;
        if (!at)
            return nullptr;
    }
    return at;
}

Value* Attribute::in(Value& entry) const
{
    Value* field = fieldIn(entry);
    if (!field || index < 0 || !field->isArray())
        return field;
    return index < field->size() ? &(*field)[index] : nullptr;
}

const Value* Attribute::in(const Value& entry) const
{
    return in(const_cast<Value&>(entry));
}

Value& Attribute::make(Value& entry) const
{
    Value* at = &entry;
    for (const Part& part : split(path)) {
        at = &(*at)[part.name];
        if (part.isList && !at->isArray())
            *at = Value(ValueType::Array);
        if (part.isList && !part.isLast)
            at = &(*at)[0];
    }
    return index < 0 ? *at : (*at)[index];
}
