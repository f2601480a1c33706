#include "host/json/reader.h"

#include "host/api/limits.h"
#include "host/json/parseerrors.h"
#include "host/json/value.h"

#include <QCoreApplication>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>

#include <rapidjson/reader.h>

namespace kql
{
namespace Json
{

namespace
{

using Document = rapidjson::GenericDocument<rapidjson::UTF8<>, rapidjson::CrtAllocator>;

// Numbers come as text, because the parser's own conversion is not exact at the limits.
constexpr unsigned kFlags = rapidjson::kParseInsituFlag | rapidjson::kParseCommentsFlag |
                            rapidjson::kParseNumbersAsStringsFlag;

/// Of a whole number in 63 bits.
constexpr unsigned kDigitsThatFit = 18;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// So many bytes at the start of a text, eight at a time, are ASCII.
std::size_t asciiLength(std::string_view text)
{
    std::size_t at = 0;
    for (std::uint64_t word = 0; at + sizeof word <= text.size(); at += sizeof word) {
        std::memcpy(&word, text.data() + at, sizeof word);
        if ((word & 0x8080808080808080U) != 0)
            return at;
    }
    return at;
}

/// The offset of the first byte that is not part of valid UTF-8, or the size of the text.
std::size_t firstInvalidUtf8(std::string_view text)
{
    struct Nowhere {
        void Put(char) {}
    } nowhere;
    std::size_t at = 0;
    while (at < text.size()) {
        at += asciiLength(text.substr(at));
        rapidjson::MemoryStream rest(text.data() + at, text.size() - at);
        if (at < text.size() && !rapidjson::UTF8<>::Validate(rest, nowhere))
            break;
        at += rest.Tell();
    }
    return at;
}

/// True where a \u escape put half of a surrogate pair, which no UTF-8 text holds.
bool hasSurrogate(std::string_view text)
{
    for (std::size_t at = text.find('\xED'); at < text.size(); at = text.find('\xED', at + 1)) {
        if (static_cast<unsigned char>(text[at + 1]) >= 0xA0)
            return true;
    }
    return false;
}

/// Tells of a number that is out of range for a double whether it is too large, and not too small.
bool isTooLarge(std::string_view number)
{
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view digits = number.substr(0, mark);
    const auto point = std::int64_t(std::min(digits.find('.'), digits.size()));
    const auto first = std::int64_t(digits.find_first_of("123456789"));
    // Positive exponents are short: the parser refuses others.
    std::int64_t exponent = 0;
    const char* const end = number.data() + number.size();
    const char* const from = std::find_if(
        number.data() + mark, end, [](char c) { return c == '-' || (c >= '0' && c <= '9'); });
    const auto result = std::from_chars(from, end, exponent);
    return result.ec != std::errc::result_out_of_range && exponent + point - first > 0;
}

/// Takes from the parser what makes up a document, and tells what must be refused.
class Filter : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Filter>
{
public:
    Filter(Document& document, bool hasEscapes) : m_document(document), m_hasEscapes(hasEscapes) {}

    bool Null() { return m_document.Null(); }
    bool Bool(bool value) { return m_document.Bool(value); }
    bool RawNumber(const char* text, unsigned length, bool copy);
    bool String(const char* text, unsigned length, bool copy);
    bool StartObject() { return enter() && m_document.StartObject(); }
    bool EndObject(unsigned count) { return leave() && m_document.EndObject(count); }
    bool StartArray() { return enter() && m_document.StartArray(); }
    bool EndArray(unsigned count) { return leave() && m_document.EndArray(count); }

    /// Null when nothing was refused.
    const char* fault() const { return m_fault; }
    /// Whether the fault is that the last bracket goes too deep.
    bool isTooDeep() const { return m_depth > Limits::kJsonDepth; }

private:
    bool addReal(std::string_view text);
    bool enter()
    {
        return ++m_depth <= Limits::kJsonDepth ||
               refuse(QT_TRANSLATE_NOOP("Json", "The document is nested too deeply."));
    }
    bool leave() { return --m_depth >= 0; }
    bool refuse(const char* fault)
    {
        m_fault = fault;
        return false;
    }

    Document& m_document;
    const char* m_fault = nullptr;
    int m_depth = 0;
    bool m_hasEscapes;
};

bool Filter::RawNumber(const char* text, unsigned length, bool)
{
    const char* end = text + length;
    std::int64_t whole = 0;
    if (length <= kDigitsThatFit) { // as most are, and by far faster than what looks for overflows
        const char* digit = text;
        while (digit != end && *digit >= '0' && *digit <= '9')
            whole = 10 * whole + (*digit++ - '0');
        if (digit == end)
            return m_document.Int64(whole);
    }
    const auto [stop, error] = std::from_chars(text, end, whole);
    if (stop == end && error == std::errc())
        return m_document.Int64(whole);
    std::uint64_t large = 0;
    const auto [largeStop, largeError] = std::from_chars(text, end, large);
    if (largeStop == end && largeError == std::errc())
        return m_document.Uint64(large);
    return addReal({text, length});
}

bool Filter::addReal(std::string_view text)
{
    double number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc()) {
        if (isTooLarge(text))
            return refuse(QT_TRANSLATE_NOOP("Json", "The number is too large."));
        number = 0;
    }
    return m_document.Double(number);
}

bool Filter::String(const char* text, unsigned length, bool)
{
    if (m_hasEscapes && hasSurrogate({text, length}))
        return refuse(QT_TRANSLATE_NOOP("Json", "The text holds half of a surrogate pair."));
    constexpr bool kCopy = true;
    return m_document.String(text, length, kCopy);
}

} // namespace

/// What is wrong with a text, and how many bytes before it are not.
struct Reader::Fault {
    const char* text = nullptr; ///< null when nothing is
    std::size_t offset = 0;
};

bool Reader::parse(std::string_view utf8, Value& root, bool)
{
    if (utf8.substr(0, kByteOrderMark.size()) == kByteOrderMark)
        utf8.remove_prefix(kByteOrderMark.size());
    // The text may lie in the value that it is read into.
    Value document;
    const Fault fault = parsed(utf8, document);
    report(utf8, fault);
    root = std::move(document);
    return !fault.text;
}

bool Reader::parse(const QString& text, Value& root, bool)
{
    const QByteArray utf8 = text.toUtf8();
    return parse(std::string_view(utf8.constData(), std::size_t(utf8.size())), root);
}

Reader::Fault Reader::parsed(std::string_view utf8, Value& root)
{
    if (utf8.size() > std::size_t(Limits::kJsonText))
        return {QT_TRANSLATE_NOOP("Json", "The text is too long."), 0};
    const std::size_t invalid = firstInvalidUtf8(utf8);
    if (invalid < utf8.size())
        return {QT_TRANSLATE_NOOP("Json", "The text is not valid UTF-8."), invalid};

    std::string copy(utf8); // for the parser to write in
    rapidjson::InsituStringStream stream(copy.data());
    Document document;
    Filter filter(document, utf8.find("\\u") != std::string_view::npos);
    rapidjson::Reader parser;
    auto parse = [&](Document&) { return !parser.Parse<kFlags>(stream, filter).IsError(); };
    document.Populate(parse);
    if (filter.fault()) {
        // The parser is behind a bracket by then, but before any other fault.
        const std::size_t bracket = filter.isTooDeep() ? 1 : 0;
        return {filter.fault(), parser.GetErrorOffset() - bracket};
    }
    if (parser.HasParseError())
        return {parseErrorText(parser.GetParseErrorCode()), parser.GetErrorOffset()};
    if (stream.Tell() < utf8.size())
        return {QT_TRANSLATE_NOOP("Json", "The text goes on after a NUL."), stream.Tell()};
    Node& tree = document;
    Members::complete(tree);
    root = Value(std::move(tree));
    return {};
}

void Reader::report(std::string_view utf8, const Fault& fault)
{
    m_errorText.clear();
    m_errorLine = m_errorColumn = 0;
    if (!fault.text)
        return;
    m_errorText = QCoreApplication::translate("Json", fault.text);
    const std::string_view before = utf8.substr(0, std::min(fault.offset, utf8.size()));
    const std::string_view line = before.substr(before.rfind('\n') + 1);
    m_errorLine = 1 + int(std::count(before.begin(), before.end(), '\n'));
    m_errorColumn =
        1 + int(std::count_if(line.begin(), line.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

} // namespace Json
} // namespace kql
