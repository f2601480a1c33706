#include "tools/rulesctl/lint/textscan.h"

#include "host/json/reader.h"
#include "host/json/value.h"
#include "tools/rulesctl/lint/jsonpointer.h"

#include <algorithm>

namespace
{

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

} // namespace

void TextScan::run(const Visit& visit)
{
    m_visit = &visit;
    m_at = m_text.substr(0, kByteOrderMark.size()) == kByteOrderMark ? kByteOrderMark.size() : 0;
    m_pointer.clear();
    value(std::string_view::npos);
}

void TextScan::value(std::size_t key)
{
    skipBlank();
    const std::size_t start = m_at;
    if (take('{')) {
        object();
    } else if (take('[')) {
        list();
    } else if (!isOver() && m_text[m_at] == '"') {
        skipText();
    } else {
        m_at = std::min(m_text.find_first_of(",]} \t\r\n/", m_at), m_text.size());
    }
    (*m_visit)({m_pointer, start, m_at, key});
}

void TextScan::object()
{
    const std::size_t length = m_pointer.size();
    skipBlank();
    while (!take('}') && !isOver()) {
        const std::size_t key = m_at;
        JsonPointer::append(m_pointer, name());
        skipBlank();
        take(':');
        value(key);
        m_pointer.resize(length);
        skipBlank();
        take(',');
        skipBlank();
        if (m_at == key)
            ++m_at;
    }
}

void TextScan::list()
{
    const std::size_t length = m_pointer.size();
    skipBlank();
    for (int i = 0; !take(']') && !isOver(); ++i) {
        const std::size_t start = m_at;
        JsonPointer::append(m_pointer, std::to_string(i));
        value(std::string_view::npos);
        m_pointer.resize(length);
        skipBlank();
        take(',');
        skipBlank();
        if (m_at == start)
            ++m_at;
    }
}

/// What escapes in a name stand for, the reader knows.
std::string TextScan::name()
{
    const std::size_t start = m_at;
    skipText();
    const std::string_view quoted = m_text.substr(start, m_at - start);
    if (quoted.find('\\') == std::string_view::npos)
        return std::string(quoted.substr(std::min<std::size_t>(1, quoted.size()),
                                         std::max<std::size_t>(2, quoted.size()) - 2));
    kql::Json::Value text;
    kql::Json::Reader().parse(quoted, text);
    return text.asStdString();
}

void TextScan::skipText()
{
    for (take('"'); !isOver() && m_text[m_at] != '"'; ++m_at) {
        if (m_text[m_at] == '\\')
            ++m_at;
    }
    m_at = std::min(m_at + 1, m_text.size());
}

void TextScan::skipBlank()
{
    do {
        m_at = std::min(m_text.find_first_not_of(" \t\r\n", m_at), m_text.size());
    } while (skipComment());
}

bool TextScan::skipComment()
{
    const std::string_view start = m_text.substr(m_at, 2);
    if (start != "//" && start != "/*")
        return false;
    const std::string_view end = start == "//" ? "\n" : "*/";
    const std::size_t found = m_text.find(end, m_at + 2);
    m_at = found == std::string_view::npos ? m_text.size() : found + end.size();
    return true;
}

bool TextScan::take(char wanted)
{
    if (isOver() || m_text[m_at] != wanted)
        return false;
    ++m_at;
    return true;
}
