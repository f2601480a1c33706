#pragma once

#include <rapidjson/error/error.h>

namespace kql
{
namespace Json
{

/// What is wrong with a text that the parser refuses with @p code, to be translated in "Json".
const char* parseErrorText(rapidjson::ParseErrorCode code);

} // namespace Json
} // namespace kql
