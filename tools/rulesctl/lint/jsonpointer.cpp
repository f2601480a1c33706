#include "tools/rulesctl/lint/jsonpointer.h"

void JsonPointer::append(std::string& pointer, std::string_view name)
{
    pointer += '/';
    for (const char c : name) {
        if (c == '~')
            pointer += "~0";
        else if (c == '/')
            pointer += "~1";
        else
            pointer += c;
    }
}

std::string JsonPointer::member(std::string_view parent, std::string_view name)
{
    std::string pointer(parent);
    append(pointer, name);
    return pointer;
}

std::string JsonPointer::element(std::string_view parent, int index)
{
    return std::string(parent) + '/' + std::to_string(index);
}
