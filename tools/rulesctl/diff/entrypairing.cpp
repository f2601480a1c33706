#include "tools/rulesctl/diff/entrypairing.h"

#include <QHash>
#include <QQueue>

#include <algorithm>
#include <iterator>
#include <limits>

using EntryPairing::Entries;
using EntryPairing::Pair;
using EntryPairing::Pairs;

namespace
{

constexpr int kUnpaired = -1;

class Pairing
{
public:
    Pairing(const Entries& a, const Entries& b)
        : m_a(a), m_b(b), m_isTaken(a.size(), false), m_partners(b.size(), kUnpaired)
    {
    }

    /// Pairs what is left and has the same key; an entry without one stays as it is.
    template<typename KeyOf>
    void pairBy(const KeyOf& keyOf)
    {
        QHash<QString, QQueue<int>> left;
        for (std::size_t i = 0; i < m_a.size(); ++i) {
            const std::optional<QString> key = m_isTaken[i] ? std::nullopt : keyOf(m_a[i]);
            if (key)
                left[*key].enqueue(static_cast<int>(i));
        }
        for (std::size_t i = 0; i < m_b.size(); ++i) {
            const std::optional<QString> key =
                m_partners[i] == kUnpaired ? keyOf(m_b[i]) : std::nullopt;
            const auto found = key ? left.find(*key) : left.end();
            if (found != left.end() && !found->isEmpty())
                take(found->dequeue(), i);
        }
    }

    void pairByPosition()
    {
        for (std::size_t i = 0; i < std::min(m_a.size(), m_b.size()); ++i) {
            if (!m_isTaken[i] && m_partners[i] == kUnpaired)
                take(static_cast<int>(i), i);
        }
    }

    Pairs pairs() const
    {
        Pairs pairs;
        for (std::size_t i = 0; i < m_b.size(); ++i) {
            if (m_partners[i] != kUnpaired)
                pairs.emplace_back(m_partners[i], static_cast<int>(i));
        }
        return pairs;
    }

private:
    void take(int a, std::size_t b)
    {
        m_isTaken[static_cast<std::size_t>(a)] = true;
        m_partners[b] = a;
    }

    const Entries& m_a;
    const Entries& m_b;
    std::vector<bool> m_isTaken;
    std::vector<int> m_partners; ///< of each of b
};

} // namespace

Pairs EntryPairing::pair(const Entries& a, const Entries& b)
{
    Pairing pairing(a, b);
    pairing.pairBy([](const EntryPairing::Entry& entry) { return entry.name; });
    pairing.pairBy(
        [](const EntryPairing::Entry& entry) { return std::optional<QString>(entry.content); });
    pairing.pairByPosition();
    return pairing.pairs();
}

/// What is not in the longest sequence that has one order in both lists; of equally long ones in
/// that of which most are where they were.
Pairs EntryPairing::moved(const Pairs& pairs)
{
    using Worth = std::pair<int, int>; ///< length, and how many are where they were
    constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();
    std::vector<Worth> worths; ///< of the best sequence that ends with each
    std::vector<std::size_t> before;
    std::size_t last = kNone;
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        Worth best(0, 0);
        std::size_t found = kNone;
        for (std::size_t j = 0; j < i; ++j) {
            if (pairs[j].first < pairs[i].first && worths[j] > best) {
                best = worths[j];
                found = j;
            }
        }
        worths.emplace_back(best.first + 1, best.second + int(pairs[i].first == pairs[i].second));
        before.push_back(found);
        if (last == kNone || worths[i] >= worths[last])
            last = i;
    }
    std::vector<bool> stays(pairs.size(), false);
    for (std::size_t i = last; i != kNone; i = before[i])
        stays[i] = true;
    Pairs moved;
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        if (!stays[i])
            moved.push_back(pairs[i]);
    }
    return moved;
}
