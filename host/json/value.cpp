#include "host/json/value.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

namespace kql
{
namespace Json
{

// A node can only be seen as a value while that adds nothing.
static_assert(sizeof(Value) == sizeof(Node) && std::is_standard_layout_v<Value>);

namespace
{

constexpr int kLargestGap = 1'000'000;

/// A null value of which the changes are lost.
Value& thrownAway()
{
    static thread_local Value scratch;
    scratch = Value();
    return scratch;
}

qint64 truncated(double number) noexcept
{
    // The limits as doubles: -2^63 is exact, 2^63 is the first number that is too large.
    constexpr double kBeyond = 9223372036854775808.0;
    if (std::isnan(number))
        return 0;
    if (number >= kBeyond)
        return std::numeric_limits<qint64>::max();
    if (number < -kBeyond)
        return std::numeric_limits<qint64>::min();
    return qint64(number);
}

} // namespace

const Value& Value::nullValue() noexcept
{
    static const Value null;
    return null;
}

int Value::memberCount() const noexcept
{
    return isObject() ? Members::count(m_node) : 0;
}

Value::Value(const QString& text) : Value(text.toStdString()) {}

Value::Value(std::string_view utf8) : m_node(textNode(utf8)) {}

Value::Value(ValueType type) noexcept
{
    constexpr rapidjson::Type kTypes[] = {rapidjson::kNullType,   rapidjson::kNumberType,
                                          rapidjson::kNumberType, rapidjson::kStringType,
                                          rapidjson::kFalseType,  rapidjson::kArrayType,
                                          rapidjson::kObjectType};
    m_node = type == ValueType::Int    ? Node(0)
             : type == ValueType::Real ? Node(0.0)
                                       : Node(kTypes[int(type)]);
}

Value::Value(const Value& other)
{
    rapidjson::CrtAllocator heap;
    m_node.CopyFrom(other.m_node, heap);
}

Value& Value::operator=(Value&& other) noexcept
{
    // The old content goes last: the new one may be a part of it.
    Node content(std::move(other.m_node));
    m_node.Swap(content);
    return *this;
}

bool Value::operator==(const Value& other) const
{
    if (type() != other.type() || size() != other.size())
        return false;
    switch (type()) {
    case ValueType::Array:
        return std::equal(
            m_node.Begin(), m_node.End(), other.m_node.Begin(),
            [](const Node& one, const Node& another) { return of(one) == of(another); });
    case ValueType::Object:
        return std::all_of(m_node.MemberBegin(), m_node.MemberBegin() + size(),
                           [&other](const Node::Member& member) {
                               const Value* const match = other.find(textOf(member.name));
                               return match && *match == of(member.value);
                           });
    case ValueType::Int:
        // -1 has the bits of 2^64-1.
        return m_node.IsInt64() == other.m_node.IsInt64() && m_node == other.m_node;
    default:
        return m_node == other.m_node;
    }
}

ValueType Value::type() const noexcept
{
    constexpr ValueType kTypes[] = {ValueType::Null,   ValueType::Bool,  ValueType::Bool,
                                    ValueType::Object, ValueType::Array, ValueType::String,
                                    ValueType::Int};
    return isDouble() ? ValueType::Real : kTypes[m_node.GetType()];
}

const Value* Value::find(std::string_view name) const
{
    const Node* const member = isObject() ? Members::find(m_node, name) : nullptr;
    return member ? &of(*member) : nullptr;
}

Value* Value::find(std::string_view name)
{
    return const_cast<Value*>(std::as_const(*this).find(name));
}

const Value& Value::operator[](std::string_view name) const
{
    const Value* member = find(name);
    return member ? *member : nullValue();
}

Value& Value::operator[](std::string_view name)
{
    if (Value* member = find(name))
        return *member;
    Node key = textNode(name);
    if (!isObject())
        m_node.SetObject();
    return of(Members::add(m_node, std::move(key)));
}

void Value::removeMember(std::string_view name)
{
    if (Value* member = find(name))
        Members::remove(m_node, member->m_node);
}

int Value::bounded(std::size_t index) noexcept
{
    return index <= std::size_t(std::numeric_limits<int>::max()) ? int(index) : -1;
}

Value& Value::operator[](int index)
{
    const int count = isArray() ? size() : 0;
    if (index < 0 || index - count > kLargestGap)
        return thrownAway();
    for (int missing = index - count; missing >= 0; --missing)
        append(Value());
    return of(m_node.Begin()[index]);
}

void Value::reserve(std::size_t count)
{
    rapidjson::CrtAllocator heap;
    if (!isArray())
        m_node.SetArray();
    m_node.Reserve(SizeType(count), heap);
}

QStringList Value::memberNames() const
{
    QStringList names;
    if (!isObject())
        return names;
    names.reserve(size());
    std::for_each(
        m_node.MemberBegin(), m_node.MemberBegin() + size(),
        [&names](const Node::Member& member) { names.append(of(member.name).asString()); });
    return names;
}

/// Null outside.
const Node::Member* Value::memberAt(int position) const noexcept
{
    const bool isInside = isObject() && position >= 0 && position < size();
    return isInside ? &*(m_node.MemberBegin() + position) : nullptr;
}

std::string_view Value::memberName(int position) const
{
    const Node::Member* const member = memberAt(position);
    return member ? textOf(member->name) : std::string_view();
}

const Value& Value::memberValue(int position) const
{
    const Node::Member* const member = memberAt(position);
    return member ? of(member->value) : nullValue();
}

Value& Value::memberValue(int position)
{
    const Node::Member* const member = memberAt(position);
    return member ? const_cast<Value&>(of(member->value)) : thrownAway();
}

bool Value::asBool() const
{
    return isDouble() ? m_node.GetDouble() != 0.0 : asInt64() != 0;
}

int Value::nearestInt() const
{
    return int(qBound(qint64(std::numeric_limits<int>::min()), asInt64(),
                      qint64(std::numeric_limits<int>::max())));
}

qint64 Value::asInt64() const
{
    if (m_node.IsInt64())
        return m_node.GetInt64();
    if (m_node.IsUint64())
        return std::numeric_limits<qint64>::max();
    return isDouble() ? truncated(m_node.GetDouble()) : m_node.IsTrue() ? 1 : 0;
}

double Value::asDouble() const
{
    return isNumeric() ? m_node.GetDouble() : double(asInt64());
}

QString Value::asString() const
{
    const std::string_view text = asView();
    return QString::fromUtf8(text.data(), int(text.size()));
}

} // namespace Json
} // namespace kql
