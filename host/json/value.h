#pragma once

#include "host/api/kqhostexport.h"
#include "host/json/members.h"

#include <QStringList>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace kql
{
namespace Json
{

/// What a Value holds. Whole numbers and numbers with a fraction are kinds of their own.
enum class ValueType { Null, Int, Real, String, Bool, Array, Object };

/**
 * One value of a JSON document, with everything below it.
 *
 * Reads are total: what is missing, of another kind or outside reads as null, 0, false or empty
 * text, and a const read never changes the document. Texts are UTF-8. Members keep the order in
 * which they were added. References into a value end when it is changed. Copies are deep.
 *
 * A value is a node of RapidJSON and nothing else, with the reads and writes that this system is
 * used to: so each node of a document can be seen as a value in its place. Documents are small,
 * nodes of the heap one by one serve them as well as any store of our own would.
 */
class KQHOST_EXPORT Value
{
public:
    Value() noexcept = default;
    Value(bool value) noexcept : m_node(value) {}
    Value(int value) noexcept : m_node(value) {}
    Value(qint64 value) noexcept : m_node(std::int64_t(value)) {}
    Value(quint64 value) noexcept : m_node(std::uint64_t(value)) {}
    Value(double value) noexcept : m_node(value) {}
    Value(const QString& text);
    Value(std::string_view utf8);
    Value(const std::string& utf8) : Value(std::string_view(utf8)) {}
    Value(const char* utf8) : Value(std::string_view(utf8 ? utf8 : "")) {}
    Value(const void* pointer) = delete;
    /// The empty value of a kind: 0, false, empty text, no elements, no members.
    Value(ValueType type) noexcept;
    /// Of a node of which all objects are complete, as Members says.
    explicit Value(Node&& node) noexcept : m_node(std::move(node)) {}

    Value(const Value& other);
    Value(Value&& other) noexcept = default;
    Value& operator=(const Value& other) { return *this = Value(other); }
    Value& operator=(Value&& other) noexcept;
    ~Value() = default;

    /// Same kind and content; members compare by name in any order, 2 and 2.0 differ.
    bool operator==(const Value& other) const;
    bool operator!=(const Value& other) const { return !(*this == other); }

    ValueType type() const noexcept;
    bool isNull() const noexcept { return m_node.IsNull(); }
    bool isBool() const noexcept { return m_node.IsBool(); }
    /// From -2^63 to 2^64-1; larger numbers are of the kind Real.
    bool isInt() const noexcept { return m_node.IsInt64() || m_node.IsUint64(); }
    /// True for the kind Real alone; isNumeric() asks for either kind of number.
    bool isDouble() const noexcept { return m_node.IsDouble(); }
    bool isNumeric() const noexcept { return m_node.IsNumber(); }
    bool isString() const noexcept { return m_node.IsString(); }
    bool isArray() const noexcept { return m_node.IsArray(); }
    bool isObject() const noexcept { return m_node.IsObject(); }

    bool isMember(std::string_view name) const { return find(name) != nullptr; }
    /// The member, or null (not a null value) where there is none.
    const Value* find(std::string_view name) const;
    Value* find(std::string_view name);
    /// The member, or a null value where there is none.
    const Value& operator[](std::string_view name) const;
    const Value& operator[](const char* name) const { return (*this)[std::string_view(name)]; }
    /// The member, made as null if missing; a value of another kind becomes an object first.
    Value& operator[](std::string_view name);
    Value& operator[](const char* name) { return (*this)[std::string_view(name)]; }
    void removeMember(std::string_view name);

    /// The element, or a null value outside.
    const Value& operator[](int index) const
    {
        const bool isInside = isArray() && index >= 0 && SizeType(index) < m_node.Size();
        return isInside ? of(m_node.Begin()[index]) : nullValue();
    }
    const Value& operator[](std::size_t index) const { return (*this)[bounded(index)]; }
    /**
     * The element; the array grows with nulls up to it, a value of another kind becomes an array
     * first. A negative index, or one more than a million past the end, changes nothing: what is
     * stored through it is thrown away.
     */
    Value& operator[](int index);
    Value& operator[](std::size_t index) { return (*this)[bounded(index)]; }
    /// Makes room for so many elements in all; a value of another kind becomes an array first.
    void reserve(std::size_t count);
    /// Adds an element; a value of another kind becomes an array first. Returns the new element.
    Value& append(Value value)
    {
        rapidjson::CrtAllocator heap;
        if (!isArray() || m_node.Capacity() == 0)
            reserve(2); // most are pairs of numbers
        m_node.PushBack(value.m_node, heap);
        return of(*(m_node.End() - 1));
    }

    /// Number of elements or members; 0 for every other kind.
    int size() const noexcept { return isArray() ? int(m_node.Size()) : memberCount(); }
    bool empty() const noexcept { return size() == 0; }
    /// Removes all elements or members; a value of another kind becomes null.
    void clear() { *this = isArray() || isObject() ? Value(type()) : Value(); }

    QStringList memberNames() const;
    /// Name and value of the member at a position; empty and null outside.
    std::string_view memberName(int position) const;
    const Value& memberValue(int position) const;
    Value& memberValue(int position);

    /// A number is "not 0".
    bool asBool() const;
    /// A fraction is cut off, what is out of range becomes the nearest limit; a bool is 0 or 1.
    int asInt() const { return m_node.IsInt() ? m_node.GetInt() : nearestInt(); }
    qint64 asInt64() const;
    double asDouble() const;
    QString asString() const;
    std::string asStdString() const { return std::string(asView()); }
    /// The text in place, UTF-8, valid until this value changes; empty for other kinds.
    std::string_view asView() const noexcept
    {
        return isString() ? textOf(m_node) : std::string_view();
    }

    /// The document as indented text. A number that is not finite is written as null. The indent
    /// ends at 32 levels, and a text of over 256 million bytes becomes empty: short documents can
    /// be nested so that their styled text has hundreds of times their length.
    std::string toStyledString() const;
    QString toStyledText() const;
    /// How many characters toStyledText() has, or would have if it were not too long to be made.
    qint64 styledLength() const;
    /// The document as text on one line, without blanks: no more than a few times as long as the
    /// text that it was read from.
    QString toCompactText() const;

private:
    using SizeType = rapidjson::SizeType;

    static const Value& nullValue() noexcept;
    int nearestInt() const;
    int memberCount() const noexcept;
    static const Value& of(const Node& node) noexcept
    {
        return reinterpret_cast<const Value&>(node);
    }
    static Value& of(Node& node) noexcept { return reinterpret_cast<Value&>(node); }
    static int bounded(std::size_t index) noexcept;
    const Node::Member* memberAt(int position) const noexcept;

    Node m_node;
};

} // namespace Json
} // namespace kql

Q_DECLARE_TYPEINFO(kql::Json::Value, Q_MOVABLE_TYPE);
