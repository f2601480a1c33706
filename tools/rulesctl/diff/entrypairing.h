#pragma once

#include <QString>
#include <optional>
#include <utility>
#include <vector>

/// Finds again the entries of one list in another one.
namespace EntryPairing
{

/// What entries are told apart by.
struct Entry {
    std::optional<QString> name; ///< nothing where it has none of its own
    QString content;             ///< all but the name
};
using Entries = std::vector<Entry>;

/// Positions from 0 in the first and the second list, in the order of the second.
using Pair = std::pair<int, int>;
using Pairs = std::vector<Pair>;

/// Pairs by name, then by equal content, then those that are at the same position. Of equals the
/// first pairs with the first.
Pairs pair(const Entries& a, const Entries& b);

/// Those of @p pairs that changed their order, as few as possible: the others keep theirs among
/// each other, whatever was put between them.
Pairs moved(const Pairs& pairs);

} // namespace EntryPairing
