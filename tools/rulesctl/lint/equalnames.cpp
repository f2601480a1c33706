#include "tools/rulesctl/lint/equalnames.h"

#include "host/json/reader.h"
#include "tools/rulesctl/lint/textscan.h"

#include <algorithm>

namespace
{

struct Member {
    std::string pointer;
    std::size_t key;
    std::size_t value;
    std::size_t end;
};
using Members = std::vector<Member>;

bool isBelow(std::string_view pointer, std::string_view base)
{
    return pointer.substr(0, base.size()) == base &&
           (pointer.size() == base.size() || pointer[base.size()] == '/');
}

/// Collects the doubles of one object after another. Values are told from the inside out: at the
/// end of each the members inside of it are known, and those of what encloses it still open.
class Collector
{
public:
    void add(const TextScan::Place& place)
    {
        std::size_t first = m_open.size();
        while (first > 0 && m_open[first - 1].key > place.value)
            --first;
        addDoubles(m_open.begin() + std::ptrdiff_t(first));
        m_open.resize(first);
        if (place.key != std::string_view::npos)
            m_open.push_back({std::string(place.pointer), place.key, place.value, place.end});
    }

    const Members& doubles() const { return m_doubles; }

private:
    void addDoubles(Members::iterator first)
    {
        std::stable_sort(first, m_open.end(),
                         [](const Member& a, const Member& b) { return a.pointer < b.pointer; });
        for (auto member = first; member != m_open.end(); ++member) {
            if (member != first && member->pointer == (member - 1)->pointer)
                m_doubles.push_back(*member);
        }
    }

    Members m_open;
    Members m_doubles;
};

} // namespace

void EqualNames::find(std::string_view utf8, std::string_view base, Finding::Document document,
                      Findings& findings)
{
    Collector collector;
    TextScan(utf8).run([&collector](const TextScan::Place& place) { collector.add(place); });
    for (const Member& member : collector.doubles()) {
        if (!isBelow(member.pointer, base))
            continue;
        Finding finding;
        finding.code = "equal-names";
        finding.document = document;
        finding.pointer = member.pointer.substr(base.size());
        finding.offset = member.key;
        kql::Json::Reader().parse(utf8.substr(member.value, member.end - member.value),
                                  finding.found);
        finding.message =
            QStringLiteral("the object has a member of that name before; the last one counts");
        findings.push_back(std::move(finding));
    }
}
