#include "tools/rulesctl/lint/jsonpointer.h"

std::string JsonPointer::member(std::string_view parent, std::string_view name)
{
    std::string pointer(parent);
    pointer += '/';
    for (const char c : name) {
        if (c == '~')
            pointer += "~0";
        else if (c == '/')
            pointer += "~1";
        else
            pointer += c;
    }
    return pointer;
}

std::string JsonPointer::element(std::string_view parent, int index)
{
    return std::string(parent) + '/' + std::to_string(index);
}
