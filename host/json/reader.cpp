#include "host/json/reader.h"

#include "host/json/utf8check.h"
#include "host/json/value.h"
#include "host/json/valuebuilder.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include <rapidjson/error/en.h>
#include <rapidjson/reader.h>

namespace kql
{
namespace Json
{

namespace
{

// Numbers come as text, because the parser's own conversion is not exact at the limits. It calls
// itself for each level of the document, of which the builder allows only so many.
constexpr unsigned kFlags = rapidjson::kParseInsituFlag | rapidjson::kParseCommentsFlag |
                            rapidjson::kParseNumbersAsStringsFlag;

// Written again, even one text of this length fits into a QString.
constexpr std::size_t kLongestText = std::size_t(128) << 20;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::size_t markLength(std::string_view utf8)
{
    const bool isMarked = utf8.substr(0, kByteOrderMark.size()) == kByteOrderMark;
    return isMarked ? kByteOrderMark.size() : 0;
}

/// A copy for the parser to write in, ended by the NUL that it stops at.
std::unique_ptr<char[]> workingCopy(std::string_view text)
{
    std::unique_ptr<char[]> copy(new char[text.size() + 1]);
    std::copy(text.begin(), text.end(), copy.get());
    copy[text.size()] = '\0';
    return copy;
}

} // namespace

/// What is wrong with a text, and how many bytes before it are not.
struct Reader::Fault {
    const char* text = nullptr; ///< null when nothing is
    std::size_t offset = 0;
};

bool Reader::parse(std::string_view utf8, Value& root, bool)
{
    const std::string_view text = utf8.substr(markLength(utf8));
    // The text may lie in the value that it is read into.
    Value document;
    const Fault fault = parseInPlace(workingCopy(text).get(), text.size(), document);
    report(text, fault);
    root = std::move(document);
    return !fault.text;
}

bool Reader::parse(const QString& text, Value& root, bool)
{
    QByteArray utf8 = text.toUtf8();
    const auto mark = static_cast<int>(markLength({utf8.constData(), std::size_t(utf8.size())}));
    Value document;
    const Fault fault = parseInPlace(utf8.data() + mark, std::size_t(utf8.size() - mark), document);
    if (fault.text)
        utf8 = text.toUtf8(); // as it was before the parser wrote in it
    report({utf8.constData() + mark, std::size_t(utf8.size() - mark)}, fault);
    root = std::move(document);
    return !fault.text;
}

Reader::Fault Reader::parseInPlace(char* text, std::size_t size, Value& document)
{
    const std::string_view utf8(text, size);
    if (size > kLongestText)
        return {"The text is too long.", 0};
    const std::size_t invalid = firstInvalidUtf8(utf8);
    if (invalid < size)
        return {"The text is not valid UTF-8.", invalid};

    rapidjson::InsituStringStream stream(text);
    ValueBuilder builder(utf8.find("\\u") != std::string_view::npos);
    rapidjson::Reader parser;
    const rapidjson::ParseResult result = parser.Parse<kFlags>(stream, builder);
    if (builder.fault()) {
        // The parser is behind a bracket by then, but before any other fault.
        const std::size_t bracket = builder.isTooDeep() ? 1 : 0;
        return {builder.fault(), result.Offset() - bracket};
    }
    if (result.IsError())
        return {rapidjson::GetParseError_En(result.Code()), result.Offset()};
    if (stream.Tell() < size)
        return {"The text goes on after a NUL.", stream.Tell()};
    document = builder.takeRoot();
    return {};
}

void Reader::report(std::string_view utf8, const Fault& fault)
{
    m_errorText = QString::fromLatin1(fault.text);
    m_errorLine = m_errorColumn = 0;
    if (!fault.text)
        return;
    const std::string_view before = utf8.substr(0, std::min(fault.offset, utf8.size()));
    const std::string_view line = before.substr(before.rfind('\n') + 1);
    m_errorLine = 1 + int(std::count(before.begin(), before.end(), '\n'));
    m_errorColumn =
        1 + int(std::count_if(line.begin(), line.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

} // namespace Json
} // namespace kql
