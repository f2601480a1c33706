#include "Protocol/entryid.h"

#include <limits>

namespace
{

int g_nId = 0; ///< last id given out

} // namespace

int EntryId::next()
{
    return g_nId = after(g_nId);
}

int EntryId::after(int last)
{
    // From 1 again after the last: entries that old are long gone.
    return last == std::numeric_limits<int>::max() ? 1 : last + 1;
}
