#include "fuzz/fault.h"

void Fuzz::require(bool holds, const std::string& text)
{
    if (!holds)
        throw Fault(text);
}
