#include "host/reader.h"

#include "host/utf8check.h"
#include "host/value.h"
#include "host/valuebuilder.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>

#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

namespace kql
{
namespace Json
{

namespace
{

// Numbers come as text, because the parser's own conversion is not exact at the limits.
constexpr unsigned kFlags = rapidjson::kParseIterativeFlag | rapidjson::kParseInsituFlag |
                            rapidjson::kParseCommentsFlag | rapidjson::kParseNumbersAsStringsFlag;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// A copy for the parser to write in, ended by the NUL that it stops at.
std::unique_ptr<char[]> workingCopy(std::string_view text)
{
    std::unique_ptr<char[]> copy(new char[text.size() + 1]);
    std::copy(text.begin(), text.end(), copy.get());
    copy[text.size()] = '\0';
    return copy;
}

} // namespace

bool Reader::parse(std::string_view utf8, Value& root, bool)
{
    m_errorText.clear();
    m_errorLine = m_errorColumn = 0;
    // The text may lie in the value that it is read into.
    Value document;
    const bool done = parseInto(utf8, document);
    root = std::move(document);
    return done;
}

bool Reader::parse(const QString& text, Value& root, bool collectComments)
{
    const QByteArray utf8 = text.toUtf8();
    return parse({utf8.constData(), std::size_t(utf8.size())}, root, collectComments);
}

bool Reader::parseInto(std::string_view utf8, Value& document)
{
    if (utf8.substr(0, kByteOrderMark.size()) == kByteOrderMark)
        utf8.remove_prefix(kByteOrderMark.size());
    if (utf8.size() > std::size_t(std::numeric_limits<int>::max()))
        return fail({}, 0, "The text is too long.");
    const std::size_t invalid = firstInvalidUtf8(utf8);
    if (invalid < utf8.size())
        return fail(utf8, invalid, "The text is not valid UTF-8.");

    const std::unique_ptr<char[]> copy = workingCopy(utf8);
    rapidjson::InsituStringStream stream(copy.get());
    ValueBuilder builder(utf8.find("\\u") != std::string_view::npos);
    rapidjson::Reader parser;
    const rapidjson::ParseResult result = parser.Parse<kFlags>(stream, builder);
    if (builder.fault())
        return fail(utf8, result.Offset(), builder.fault());
    if (result.IsError())
        return fail(utf8, result.Offset(), rapidjson::GetParseError_En(result.Code()));
    if (stream.Tell() < utf8.size())
        return fail(utf8, stream.Tell(), "The text goes on after a NUL.");
    document = builder.takeRoot();
    return true;
}

bool Reader::fail(std::string_view utf8, std::size_t offset, const char* fault)
{
    const std::string_view before = utf8.substr(0, std::min(offset, utf8.size()));
    const std::string_view line = before.substr(before.rfind('\n') + 1);
    m_errorText = QString::fromLatin1(fault);
    m_errorLine = 1 + int(std::count(before.begin(), before.end(), '\n'));
    m_errorColumn =
        1 + int(std::count_if(line.begin(), line.end(), [](char c) { return (c & 0xC0) != 0x80; }));
    return false;
}

} // namespace Json
} // namespace kql
