#include "Protocol/entryid.h"

#include <atomic>
#include <limits>

namespace
{

std::atomic<int> g_nId{0}; ///< last id given out

} // namespace

int EntryId::next()
{
    int last = g_nId;
    while (!g_nId.compare_exchange_weak(last, after(last))) {
    }
    return after(last);
}

int EntryId::after(int last)
{
    // From 1 again after the last: entries that old are long gone.
    return last == std::numeric_limits<int>::max() ? 1 : last + 1;
}
