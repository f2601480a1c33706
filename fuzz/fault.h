#pragma once

#include <stdexcept>
#include <string>

namespace Fuzz
{

/// Says what did not hold for an input.
class Fault : public std::logic_error
{
public:
    using std::logic_error::logic_error;
};

/// Throws a Fault of that text unless @p holds.
void require(bool holds, const std::string& text);

} // namespace Fuzz
