#include "tools/rulesctl/documents/rawmember.h"

#include <algorithm>

namespace
{

constexpr auto kNone = std::string_view::npos;

/// Goes through the tokens of a valid text; its end ends everything.
class Scan
{
public:
    explicit Scan(std::string_view text) : m_text(text) {}

    char at() const { return m_at < m_text.size() ? m_text[m_at] : '\0'; }
    void step() { ++m_at; }
    void skipBlank();
    /// The string or value that begins here.
    std::string_view takeString();
    std::string_view takeValue();

private:
    void skipTo(std::size_t place) { m_at = std::min(place, m_text.size()); }
    void skipBrackets();

    std::string_view m_text;
    std::size_t m_at = 0;
};

void Scan::skipBlank()
{
    while (m_at < m_text.size()) {
        if (std::string_view(" \t\r\n\xEF\xBB\xBF").find(at()) != kNone) {
            step();
        } else if (m_text.substr(m_at, 2) == "/*") {
            const std::size_t end = m_text.find("*/", m_at + 2);
            skipTo(end == kNone ? kNone : end + 2);
        } else if (m_text.substr(m_at, 2) == "//") {
            skipTo(m_text.find('\n', m_at));
        } else {
            return;
        }
    }
}

std::string_view Scan::takeString()
{
    const std::size_t begin = m_at;
    step();
    while (m_at < m_text.size() && at() != '"')
        m_at += at() == '\\' ? 2 : 1;
    step();
    skipTo(m_at);
    return m_text.substr(begin, m_at - begin);
}

std::string_view Scan::takeValue()
{
    const std::size_t begin = m_at;
    if (at() == '"')
        return takeString();
    if (at() == '{' || at() == '[')
        skipBrackets();
    else
        skipTo(m_text.find_first_of(",]} \t\r\n/", m_at));
    return m_text.substr(begin, m_at - begin);
}

void Scan::skipBrackets()
{
    int depth = 0;
    do {
        skipBlank();
        if (at() == '"') {
            takeString();
            continue;
        }
        if (at() == '{' || at() == '[')
            ++depth;
        else if (at() == '}' || at() == ']')
            --depth;
        step();
    } while (depth > 0 && m_at < m_text.size());
}

} // namespace

std::string_view RawMember::find(std::string_view object, std::string_view name)
{
    std::string_view found;
    Scan scan(object);
    scan.skipBlank();
    scan.step();
    for (scan.skipBlank(); scan.at() == '"'; scan.skipBlank()) {
        const std::string_view key = scan.takeString();
        scan.skipBlank();
        scan.step();
        scan.skipBlank();
        const std::string_view value = scan.takeValue();
        if (key.size() == name.size() + 2 && key.substr(1, name.size()) == name)
            found = value;
        scan.skipBlank();
        if (scan.at() == ',')
            scan.step();
    }
    return found;
}
