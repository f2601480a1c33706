#include "Protocol/valueconversion.h"

#include "Protocol/ruleprotocolitem.h"
#include "host/json/reader.h"
#include "host/json/value.h"

#include <QSize>
#include <QStringList>
#include <cmath>
#include <utility>

using kql::Json::Value;

namespace
{

constexpr int kEmpty = -1;

/// Whole numbers up to this have a double of their own.
constexpr qint64 kExactWhole = qint64(1) << 53;

bool isText(const Value& value)
{
    return value.isString() || value.isNumeric() || value.isBool();
}

bool isTexts(const Value& value)
{
    bool all = value.isArray() && !value.empty();
    for (int i = 0; all && i < value.size(); ++i)
        all = isText(value[i]);
    return all;
}

QVariant readText(const Value& value)
{
    if (const std::optional<QString> text = ValueConversion::toText(value))
        return *text;
    if (!isTexts(value))
        return {};
    QStringList texts;
    for (int i = 0; i < value.size(); ++i)
        texts.append(*ValueConversion::toText(value[i]));
    return texts;
}

/// Whether @p value is a whole number, with a fraction of 0 or without, that an int can hold.
bool isWhole(const Value& value)
{
    return value.isNumeric() && value.asDouble() == value.asInt();
}

bool isExactDouble(const Value& value)
{
    return value.isDouble() ||
           (value.isInt() && value.asInt64() <= kExactWhole && value.asInt64() >= -kExactWhole);
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

/// Whether @p value has limits at all, and none that an int cannot hold.
bool isInterval(const Value& value)
{
    const auto fits = [&value](int i) { return !value[i].isInt() || isWhole(value[i]); };
    return value.isArray() && value.size() > 1 && fits(0) && fits(1);
}

int readLimit(const Value& element)
{
    return isWhole(element) ? element.asInt() : kEmpty;
}

QVariant readInterval(const Value& value)
{
    if (!isInterval(value))
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
    const bool isExact = std::abs(number) <= double(kExactWhole) && std::trunc(number) == number;
    return isExact && like.isInt() ? Value(static_cast<qint64>(number)) : Value(number);
}

std::optional<QString> ValueConversion::toText(const Value& value)
{
    if (value.isString())
        return value.asString();
    return isText(value) ? std::optional<QString>(value.toCompactText()) : std::nullopt;
}

qint64 ValueConversion::styledLength(const Value& found, const RuleProtocolItem& item)
{
    return item.valueType() == ValueType::Object ? element(found, item).styledLength() : 0;
}

const Value& ValueConversion::element(const Value& found, const RuleProtocolItem& item)
{
    return found.isArray() && item.index() >= 0 ? found[item.index()] : found;
}

Value* ValueConversion::element(Value& found, const RuleProtocolItem& item)
{
    if (!found.isArray() || item.index() < 0)
        return &found;
    return item.index() < found.size() ? &found[item.index()] : nullptr;
}

bool ValueConversion::isReadWhole(const Value& found, const RuleProtocolItem& item)
{
    const Value& value = element(found, item);
    if (value.isNull())
        return true;
    switch (item.valueType()) {
    case ValueType::String:
        return isText(value) || isTexts(value);
    case ValueType::Bool:
        return value.isBool();
    case ValueType::Int:
        return isWhole(value);
    case ValueType::Float:
        return isExactDouble(value);
    case ValueType::ArrayInt:
        return isInterval(value);
    case ValueType::Object:
    case ValueType::Point:
    case ValueType::None:
        break;
    }
    return true;
}

QVariant ValueConversion::parseJsonToValue(const Value& found, const RuleProtocolItem& item)
{
    const Value& value = element(found, item);
    if (value.isNull())
        return {};
    switch (item.valueType()) {
    case ValueType::String:
        return readText(value);
    case ValueType::Bool:
        return value.isBool() || value.isNumeric() ? QVariant(value.asBool()) : QVariant();
    case ValueType::Int:
        return isWhole(value) ? QVariant(value.asInt()) : QVariant();
    case ValueType::Float:
        return value.isNumeric() ? QVariant(value.asDouble()) : QVariant();
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
    Value* const place = element(found, item);
    if (!place)
        return;
    Value& target = *place;
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
        return writeDouble(value, target, asRead ? &element(*asRead, item) : nullptr);
    case ValueType::ArrayInt:
        return writeInterval(value, target);
    case ValueType::Object:
        return writeObject(value, target);
    case ValueType::Point:
    case ValueType::None:
        return;
    }
}
