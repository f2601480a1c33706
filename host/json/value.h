#pragma once

#include "host/api/kqhostexport.h"
#include "host/json/valuetype.h"

#include <QStringList>

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

namespace kql
{
namespace Json
{

struct Items;
struct MemberBlock;
struct TextBlock;

/**
 * One value of a JSON document, with everything below it.
 *
 * Reads are total: what is missing, of another kind or outside reads as null, 0, false or empty
 * text, and a const read never changes the document. Texts are UTF-8. Members keep the order in
 * which they were added. References into a value end when it is changed.
 *
 * Sixteen bytes: short texts are held in place, longer ones are shared between copies, the
 * elements of an array or object lie in one block that the value owns.
 */
class KQHOST_EXPORT Value
{
public:
    Value() noexcept = default;
    Value(bool value) noexcept { store(Kind::Bool, value); }
    Value(int value) noexcept { store(Kind::Int, qint64(value)); }
    Value(qint64 value) noexcept { store(Kind::Int, value); }
    Value(quint64 value) noexcept { store(value >> 63 ? Kind::LargeInt : Kind::Int, value); }
    Value(double value) noexcept { store(Kind::Real, value); }
    Value(const QString& text);
    Value(std::string_view utf8) { assignText(utf8); }
    Value(const std::string& utf8) { assignText(utf8); }
    Value(const char* utf8);
    Value(const void* pointer) = delete;
    /// The empty value of a kind: 0, false, empty text, no elements, no members.
    Value(ValueType type) noexcept;

    Value(const Value& other);
    Value(Value&& other) noexcept { takeFrom(other); }
    Value& operator=(const Value& other);
    Value& operator=(Value&& other) noexcept;
    ~Value()
    {
        if (m_bytes.kind >= Kind::LongText)
            release();
    }

    /// Same kind and content; members compare by name in any order, 2 and 2.0 differ.
    bool operator==(const Value& other) const;
    bool operator!=(const Value& other) const { return !(*this == other); }

    ValueType type() const noexcept;
    bool isNull() const noexcept { return m_bytes.kind == Kind::Null; }
    bool isBool() const noexcept { return m_bytes.kind == Kind::Bool; }
    /// From -2^63 to 2^64-1; larger numbers are of the kind Real.
    bool isInt() const noexcept
    {
        return m_bytes.kind == Kind::Int || m_bytes.kind == Kind::LargeInt;
    }
    /// True for the kind Real alone; isNumeric() asks for either kind of number.
    bool isDouble() const noexcept { return m_bytes.kind == Kind::Real; }
    bool isNumeric() const noexcept { return isInt() || isDouble(); }
    bool isString() const noexcept
    {
        return m_bytes.kind == Kind::ShortText || m_bytes.kind == Kind::LongText;
    }
    bool isArray() const noexcept { return m_bytes.kind == Kind::Array; }
    bool isObject() const noexcept { return m_bytes.kind == Kind::Object; }

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
    const Value& operator[](int index) const;
    const Value& operator[](std::size_t index) const { return (*this)[bounded(index)]; }
    /**
     * The element; the array grows with nulls up to it, a value of another kind becomes an array
     * first. A negative index, or one more than a million past the end, changes nothing: what is
     * stored through it is thrown away.
     */
    Value& operator[](int index);
    Value& operator[](std::size_t index) { return (*this)[bounded(index)]; }
    /// Adds an element; a value of another kind becomes an array first. Returns the new element.
    Value& append(Value value);

    /// Number of elements or members; 0 for every other kind.
    int size() const noexcept;
    bool empty() const noexcept { return size() == 0; }
    /// Removes all elements or members; a value of another kind becomes null.
    void clear();

    QStringList memberNames() const;
    /// Name and value of the member at a position; empty and null outside.
    std::string_view memberName(int position) const;
    const Value& memberValue(int position) const;
    Value& memberValue(int position);

    /// A number is "not 0".
    bool asBool() const;
    /// A fraction is cut off, what is out of range becomes the nearest limit; a bool is 0 or 1.
    int asInt() const;
    qint64 asInt64() const;
    double asDouble() const;
    QString asString() const;
    std::string asStdString() const;
    /// The text in place, UTF-8, valid until this value changes; empty for other kinds.
    std::string_view asView() const noexcept;

    /// The document as indented text. A number that is not finite is written as null.
    std::string toStyledString() const;
    QString toStyledText() const;
    /// How many characters toStyledText() has, or would have if it were not too long to be made.
    qint64 styledLength() const;
    /// The document as text on one line, without blanks: no more than a few times as long as the
    /// text that it was read from.
    QString toCompactText() const;

private:
    friend class ValueBuilder;
    template<typename Writer>
    friend class ValueWriter;
    friend struct MemberBlock;

    enum class Kind : unsigned char {
        Null,
        Bool,
        Int,
        LargeInt, ///< from 2^63
        Real,
        ShortText,
        LongText,
        Array,
        Object
    };
    static constexpr std::size_t kShortText = 14;
    // Of an array, behind the pointer to its elements.
    static constexpr std::size_t kSizeAt = 8;
    static constexpr std::size_t kOffsetAt = 12;

    /// Unused bytes are zero, so that short texts compare as two words.
    struct Bytes {
        alignas(8) char content[kShortText] = {};
        unsigned char length = 0;
        Kind kind = Kind::Null;
    };

    template<typename T>
    T load() const noexcept
    {
        T content;
        std::memcpy(&content, m_bytes.content, sizeof(T));
        return content;
    }
    template<typename T>
    void store(Kind kind, T content) noexcept
    {
        std::memcpy(m_bytes.content, &content, sizeof(T));
        m_bytes.kind = kind;
    }
    template<typename Block>
    Block* block() const noexcept
    {
        return static_cast<Block*>(load<void*>());
    }
    void hold(Kind kind, void* content) noexcept { store(kind, content); }
    void hold(const Items& items) noexcept;
    void takeFrom(Value& other) noexcept
    {
        m_bytes = other.m_bytes;
        other.m_bytes = {};
    }

    static int bounded(std::size_t index) noexcept;
    void assignText(std::string_view utf8)
    {
        if (utf8.size() > kShortText) {
            assignLongText(utf8);
            return;
        }
        for (std::size_t at = 0; at < utf8.size(); ++at)
            m_bytes.content[at] = utf8[at];
        m_bytes.length = static_cast<unsigned char>(utf8.size());
        m_bytes.kind = Kind::ShortText;
    }
    void assignLongText(std::string_view utf8);
    bool sameText(const Value& other) const noexcept
    {
        if (std::memcmp(&m_bytes, &other.m_bytes, sizeof m_bytes) == 0)
            return true;
        return m_bytes.kind == Kind::LongText && other.m_bytes.kind == Kind::LongText &&
               asView() == other.asView();
    }
    void release() noexcept;
    Items items() const noexcept;
    MemberBlock* members() const noexcept { return isObject() ? block<MemberBlock>() : nullptr; }

    Bytes m_bytes;
};

} // namespace Json
} // namespace kql

Q_DECLARE_TYPEINFO(kql::Json::Value, Q_MOVABLE_TYPE);
