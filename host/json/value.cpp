#include "host/json/value.h"

#include "host/json/valueblocks.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kql
{
namespace Json
{

static_assert(sizeof(Value) == 16, "a value is two words");

namespace
{

constexpr int kLargestGap = 1'000'000;

const Value& nullValue() noexcept
{
    static const Value null;
    return null;
}

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

Value::Value(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    assignText({utf8.constData(), std::size_t(utf8.size())});
}

Value::Value(const char* utf8)
{
    assignText(utf8 ? std::string_view(utf8) : std::string_view());
}

Value::Value(ValueType type) noexcept
{
    constexpr Kind kKinds[] = {Kind::Null, Kind::Int,   Kind::Real,  Kind::ShortText,
                               Kind::Bool, Kind::Array, Kind::Object};
    m_bytes.kind = kKinds[int(type)];
}

Value::Value(const Value& other)
{
    switch (other.m_bytes.kind) {
    case Kind::LongText:
        other.block<TextBlock>()->users.fetch_add(1, std::memory_order_relaxed);
        hold(Kind::LongText, other.block<TextBlock>());
        break;
    case Kind::Array:
        hold(Items::copy(other.items()));
        break;
    case Kind::Object:
        hold(Kind::Object, MemberBlock::copy(other.members()));
        break;
    default:
        m_bytes = other.m_bytes;
    }
}

Value& Value::operator=(const Value& other)
{
    return *this = Value(other);
}

Value& Value::operator=(Value&& other) noexcept
{
    // The old content goes last: the new one may be a part of it.
    Value taken(std::move(other));
    Value old(std::move(*this));
    takeFrom(taken);
    return *this;
}

void Value::release() noexcept
{
    if (m_bytes.kind == Kind::LongText)
        block<TextBlock>()->release();
    else if (m_bytes.kind == Kind::Array)
        items().release();
    else if (m_bytes.kind == Kind::Object)
        MemberBlock::release(members());
}

void Value::assignLongText(std::string_view utf8)
{
    hold(Kind::LongText, TextBlock::make(utf8));
}

bool Value::operator==(const Value& other) const
{
    if (type() != other.type() || size() != other.size())
        return false;
    switch (m_bytes.kind) {
    case Kind::Real:
        return load<double>() == other.load<double>();
    case Kind::Array:
        return std::equal(items().begin(), items().end(), other.items().begin());
    case Kind::Object:
        return empty() ||
               std::all_of(members()->begin(), members()->end(), [&other](const Member& member) {
                   const Value* match = other.find(member.name.asView());
                   return match && *match == member.value;
               });
    default:
        return sameText(other);
    }
}

ValueType Value::type() const noexcept
{
    constexpr ValueType kTypes[] = {ValueType::Null,   ValueType::Bool,  ValueType::Int,
                                    ValueType::Int,    ValueType::Real,  ValueType::String,
                                    ValueType::String, ValueType::Array, ValueType::Object};
    return kTypes[int(m_bytes.kind)];
}

const Value* Value::find(std::string_view name) const
{
    MemberBlock* block = members();
    return block ? block->find(name) : nullptr;
}

Value* Value::find(std::string_view name)
{
    MemberBlock* block = members();
    return block ? block->find(name) : nullptr;
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
    Value key(name);
    if (!isObject())
        *this = Value(ValueType::Object);
    MemberBlock* block = MemberBlock::grown(members());
    hold(Kind::Object, block);
    return block->findOrAdd(std::move(key));
}

void Value::removeMember(std::string_view name)
{
    if (Value* member = find(name))
        members()->remove(member);
}

int Value::bounded(std::size_t index) noexcept
{
    return index <= std::size_t(std::numeric_limits<int>::max()) ? int(index) : -1;
}

const Value& Value::operator[](int index) const
{
    const Items all = items();
    return index >= 0 && std::uint32_t(index) < all.size ? all.first[index] : nullValue();
}

Value& Value::operator[](int index)
{
    const int count = isArray() ? size() : 0;
    if (index < 0 || index - count > kLargestGap)
        return thrownAway();
    for (int missing = index - count; missing >= 0; --missing)
        append(Value());
    return items().first[index];
}

Value& Value::append(Value value)
{
    if (!isArray())
        *this = Value(ValueType::Array);
    Items all = items();
    all.append(std::move(value));
    hold(all);
    return *(all.end() - 1);
}

int Value::size() const noexcept
{
    if (isArray())
        return int(items().size);
    const MemberBlock* block = members();
    return block ? block->size : 0;
}

void Value::clear()
{
    *this = isArray() || isObject() ? Value(type()) : Value();
}

QStringList Value::memberNames() const
{
    QStringList names;
    names.reserve(isObject() ? size() : 0);
    for (int position = 0; isObject() && position < size(); ++position)
        names.append(members()->begin()[position].name.asString());
    return names;
}

std::string_view Value::memberName(int position) const
{
    const MemberBlock* block = members();
    if (!block || position < 0 || position >= block->size)
        return {};
    return block->begin()[position].name.asView();
}

const Value& Value::memberValue(int position) const
{
    const MemberBlock* block = members();
    if (!block || position < 0 || position >= block->size)
        return nullValue();
    return block->begin()[position].value;
}

Value& Value::memberValue(int position)
{
    MemberBlock* block = members();
    if (!block || position < 0 || position >= block->size)
        return thrownAway();
    return block->begin()[position].value;
}

bool Value::asBool() const
{
    if (m_bytes.kind == Kind::Bool)
        return load<bool>();
    return m_bytes.kind == Kind::Real ? load<double>() != 0.0 : asInt64() != 0;
}

int Value::asInt() const
{
    return int(qBound(qint64(std::numeric_limits<int>::min()), asInt64(),
                      qint64(std::numeric_limits<int>::max())));
}

qint64 Value::asInt64() const
{
    switch (m_bytes.kind) {
    case Kind::Int:
        return load<qint64>();
    case Kind::LargeInt:
        return std::numeric_limits<qint64>::max();
    case Kind::Real:
        return truncated(load<double>());
    case Kind::Bool:
        return load<bool>() ? 1 : 0;
    default:
        return 0;
    }
}

double Value::asDouble() const
{
    if (m_bytes.kind == Kind::LargeInt)
        return double(load<quint64>());
    return m_bytes.kind == Kind::Real ? load<double>() : double(asInt64());
}

QString Value::asString() const
{
    const std::string_view text = asView();
    return QString::fromUtf8(text.data(), int(text.size()));
}

std::string Value::asStdString() const
{
    return std::string(asView());
}

std::string_view Value::asView() const noexcept
{
    if (m_bytes.kind == Kind::ShortText)
        return {m_bytes.content, m_bytes.length};
    return m_bytes.kind == Kind::LongText ? block<TextBlock>()->view() : std::string_view();
}

} // namespace Json
} // namespace kql
