#include "host/json/valuebuilder.h"

#include "host/json/valueblocks.h"

#include <QByteArray>

#include <charconv>
#include <cmath>

namespace kql
{
namespace Json
{

namespace
{

/// True where a \u escape put half of a surrogate pair, which no UTF-8 text holds.
bool hasSurrogate(std::string_view text)
{
    for (std::size_t at = text.find('\xED'); at < text.size(); at = text.find('\xED', at + 1)) {
        if (static_cast<unsigned char>(text[at + 1]) >= 0xA0)
            return true;
    }
    return false;
}

} // namespace

bool ValueBuilder::RawNumber(const char* text, unsigned length, bool)
{
    const char* end = text + length;
    qint64 whole = 0;
    const auto [stop, error] = std::from_chars(text, end, whole);
    if (stop == end && error == std::errc())
        return add(whole);
    quint64 large = 0;
    const auto [largeStop, largeError] = std::from_chars(text, end, large);
    if (largeStop == end && largeError == std::errc())
        return add(large);
    return addReal({text, length});
}

bool ValueBuilder::addReal(std::string_view text)
{
    double number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc())
        // Tells the too small, which is 0, from the too large.
        number = QByteArray(text.data(), int(text.size())).toDouble();
    return std::isfinite(number) ? add(number) : refuse("The number is too large.");
}

bool ValueBuilder::String(const char* text, unsigned length, bool)
{
    const std::string_view view(text, length);
    if (m_escapes && hasSurrogate(view))
        return refuse("The text holds half of a surrogate pair.");
    if (length <= Value::kShortText)
        return add(view);
    Value value;
    value.hold(Value::Kind::LongText, TextBlock::make(view, &m_arena));
    return add(std::move(value));
}

bool ValueBuilder::EndObject(unsigned count)
{
    --m_depth;
    Value object(ValueType::Object);
    if (count > 0) {
        auto* first = reinterpret_cast<Member*>(m_open.newest(std::size_t(count) * 2));
        object.hold(Value::Kind::Object, MemberBlock::take(first, int(count), m_arena));
        m_open.forgetNewest(std::size_t(count) * 2);
    }
    return add(std::move(object));
}

bool ValueBuilder::EndArray(unsigned count)
{
    --m_depth;
    Value array(ValueType::Array);
    if (count > 0) {
        array.hold(Items::take(m_open.newest(count), int(count), m_arena));
        m_open.forgetNewest(count);
    }
    return add(std::move(array));
}

Value ValueBuilder::takeRoot()
{
    return m_open.empty() ? Value() : std::move(*m_open.newest(1));
}

bool ValueBuilder::enter()
{
    return ++m_depth <= kDeepest || refuse("The document is nested too deeply.");
}

bool ValueBuilder::refuse(const char* fault)
{
    m_fault = fault;
    return false;
}

} // namespace Json
} // namespace kql
