#pragma once

#include <algorithm>

/// How a command ends, as scripts see it. Of several the worst counts, which is the highest.
enum class ExitStatus {
    Clean = 0,    ///< as asked, clean, same
    Differs = 1,  ///< fails, has findings, differs
    Unusable = 2, ///< arguments or a document cannot be used, or output was not written
};

inline ExitStatus worst(ExitStatus one, ExitStatus other)
{
    return std::max(one, other);
}
