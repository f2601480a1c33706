#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

/**
 * Walks through a text that the JSON reader accepts, with its comments and byte-order mark, and
 * tells where each value stands. Nothing is checked again: of a text that is no JSON it tells
 * nonsense, but ends.
 */
class TextScan
{
public:
    struct Place {
        std::string_view pointer;
        std::size_t value; ///< offset of its first byte in the text
        std::size_t end;   ///< behind its last one
        std::size_t key;   ///< of its name's quotation mark; npos for what is no member
    };
    /// What is inside of a value is told before the value.
    using Visit = std::function<void(const Place& place)>;

    explicit TextScan(std::string_view utf8) : m_text(utf8) {}

    /// Tells all values, of members with one name each of them.
    void run(const Visit& visit);

private:
    void value(std::size_t key);
    void object();
    void list();
    std::string name();
    void skipText();
    void skipBlank();
    bool skipComment();
    bool take(char wanted);
    bool isOver() const { return m_at >= m_text.size(); }

    std::string_view m_text;
    std::size_t m_at = 0;
    std::string m_pointer;
    const Visit* m_visit = nullptr;
};
