#include "tools/rulesctl/lint/positions.h"

#include "tools/rulesctl/lint/textscan.h"

#include <algorithm>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace
{

struct Offsets {
    std::size_t value = 0;
    std::size_t key = std::string_view::npos;
};

/// Counts on from one offset to the next, so that a text is walked through once.
class LineCount
{
public:
    explicit LineCount(std::string_view utf8) : m_text(utf8)
    {
        if (m_text.substr(0, 3) == "\xEF\xBB\xBF")
            m_at = 3;
    }

    /// @p offset is none before an earlier one.
    void placeAt(std::size_t offset, Finding& finding)
    {
        for (; m_at < std::min(offset, m_text.size()); ++m_at) {
            if (m_text[m_at] == '\n') {
                ++m_line;
                m_column = 1;
            } else if ((m_text[m_at] & 0xC0) != 0x80) {
                ++m_column;
            }
        }
        // Within a code point its first byte was counted already.
        finding.line = m_line;
        finding.column = m_column;
    }

private:
    std::string_view m_text;
    std::size_t m_at = 0;
    int m_line = 1;
    int m_column = 1;
};

void placeAll(std::vector<std::pair<std::size_t, Finding*>>& found, std::string_view utf8)
{
    std::stable_sort(found.begin(), found.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    LineCount count(utf8);
    for (const auto& [offset, finding] : found)
        count.placeAt(offset, *finding);
}

} // namespace

void Positions::place(Findings& findings, std::string_view utf8, std::string_view base)
{
    if (findings.empty())
        return;
    std::unordered_map<std::string, Offsets> wanted;
    for (const Finding& finding : findings)
        wanted.emplace(std::string(base) + finding.pointer, Offsets());
    TextScan(utf8).run([&wanted](const TextScan::Place& place) {
        const auto found = wanted.find(std::string(place.pointer));
        if (found != wanted.end())
            found->second = {place.value, place.key};
    });
    std::vector<std::pair<std::size_t, Finding*>> places;
    for (Finding& finding : findings) {
        const Offsets& at = wanted[std::string(base) + finding.pointer];
        const bool isAtKey = finding.isAtKey && at.key != std::string_view::npos;
        places.emplace_back(finding.offset.value_or(isAtKey ? at.key : at.value), &finding);
    }
    placeAll(places, utf8);
    const auto key = [](const Finding& finding) {
        return std::tie(finding.line, finding.column, finding.code);
    };
    std::stable_sort(findings.begin(), findings.end(),
                     [&key](const Finding& a, const Finding& b) { return key(a) < key(b); });
}
