#include "Protocol/valueconversion.h"

#include "Protocol/ruleprotocolitem.h"
#include "host/reader.h"
#include "host/value.h"

#include <QSize>
#include <QStringList>
#include <cmath>
#include <utility>

using kql::Json::Value;

namespace
{

constexpr int kEmpty = -1;

bool hasElement(const Value& value, int index)
{
    return value.isArray() && index >= 0 && index < value.size();
}

/// What an item with that index reads of @p found.
const Value& readElement(const Value& found, int index)
{
    return hasElement(found, index) ? found[index] : found;
}

QVariant readText(const Value& value)
{
    if (!value.isArray())
        return value.asString();
    QStringList texts;
    for (int i = 0; i < value.size(); ++i)
        texts.append(value[i].asString());
    return texts.isEmpty() ? QVariant() : QVariant(texts);
}

void writeText(const QVariant& value, Value& target)
{
    const QStringList texts = value.toStringList();
    const bool isList = value.type() == QVariant::StringList;
    const bool needsArray = target.isArray() || texts.size() > 1 || (target.isNull() && isList);
    if (!needsArray) {
        target = Value(value.toString());
        return;
    }
    target = Value(kql::Json::ValueType::Array);
    for (const QString& text : texts)
        target.append(Value(text));
}

int readLimit(const Value& element)
{
    return element.isInt() ? element.asInt() : kEmpty;
}

QVariant readInterval(const Value& value)
{
    if (value.size() < 2 || !value.isArray())
        return {};
    return QSize(readLimit(value[0]), readLimit(value[1]));
}

void writeInterval(const QVariant& value, Value& target)
{
    if (value.type() != QVariant::Size || !(target.isArray() || target.isNull()))
        return;
    const QSize interval = value.toSize();
    target[0] = Value(qMax(interval.width(), 0));
    target[1] = Value(qMax(interval.height(), 0));
}

void writeObject(const QVariant& value, Value& target)
{
    Value parsed;
    if (kql::Json::Reader().parse(value.toString(), parsed))
        target = std::move(parsed);
}

void writeInt(const QVariant& value, Value& target)
{
    bool isNumber = false;
    const int number = value.toInt(&isNumber);
    if (isNumber && !target.isArray())
        target = Value(number);
}

void writeDouble(const QVariant& value, Value& target, const Value* asRead)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    if (isNumber && std::isfinite(number) && !target.isArray())
        target = ValueConversion::numberLike(number, asRead ? *asRead : target);
}

} // namespace

Value ValueConversion::numberLike(double number, const Value& like)
{
    constexpr double kExactWhole = 9007199254740992.0;
    const bool isWhole = std::abs(number) <= kExactWhole && std::trunc(number) == number;
    return isWhole && like.isInt() ? Value(static_cast<qint64>(number)) : Value(number);
}

qint64 ValueConversion::styledLength(const Value& found, const RuleProtocolItem& item)
{
    return item.valueType() == ValueType::Object ? readElement(found, item.index()).styledLength()
                                                 : 0;
}

QVariant ValueConversion::parseJsonToValue(const Value& found, const RuleProtocolItem& item)
{
    const Value& value = readElement(found, item.index());
    if (value.isNull())
        return {};
    switch (item.valueType()) {
    case ValueType::String:
        return readText(value);
    case ValueType::Bool:
        return value.asBool();
    case ValueType::Int:
        return value.asInt();
    case ValueType::Float:
        return value.asDouble();
    case ValueType::ArrayInt:
        return readInterval(value);
    case ValueType::Object:
        return value.toStyledText();
    case ValueType::Point:
    case ValueType::None:
        break;
    }
    return {};
}

void ValueConversion::toJson(const QVariant& value, const RuleProtocolItem& item, Value& found,
                             const Value* asRead)
{
    Value& target = hasElement(found, item.index()) ? found[item.index()] : found;
    if (!value.isValid()) {
        if (item.valueType() == ValueType::String && target.isArray())
            target.clear();
        return;
    }
    switch (item.valueType()) {
    case ValueType::String:
        return writeText(value, target);
    case ValueType::Bool:
        if (!target.isArray())
            target = Value(value.toBool());
        return;
    case ValueType::Int:
        return writeInt(value, target);
    case ValueType::Float:
        return writeDouble(value, target, asRead ? &readElement(*asRead, item.index()) : nullptr);
    case ValueType::ArrayInt:
        return writeInterval(value, target);
    case ValueType::Object:
        return writeObject(value, target);
    case ValueType::Point:
    case ValueType::None:
        return;
    }
}
