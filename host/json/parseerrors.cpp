#include "host/json/parseerrors.h"

#include <QCoreApplication>

namespace kql
{
namespace Json
{

const char* parseErrorText(rapidjson::ParseErrorCode code)
{
    switch (code) {
    case rapidjson::kParseErrorDocumentEmpty:
        return QT_TRANSLATE_NOOP("Json", "The document is empty.");
    case rapidjson::kParseErrorDocumentRootNotSingular:
        return QT_TRANSLATE_NOOP("Json", "The document root must not be followed by other values.");
    case rapidjson::kParseErrorObjectMissName:
        return QT_TRANSLATE_NOOP("Json", "Missing a name for object member.");
    case rapidjson::kParseErrorObjectMissColon:
        return QT_TRANSLATE_NOOP("Json", "Missing a colon after a name of object member.");
    case rapidjson::kParseErrorObjectMissCommaOrCurlyBracket:
        return QT_TRANSLATE_NOOP("Json", "Missing a comma or '}' after an object member.");
    case rapidjson::kParseErrorArrayMissCommaOrSquareBracket:
        return QT_TRANSLATE_NOOP("Json", "Missing a comma or ']' after an array element.");
    case rapidjson::kParseErrorStringUnicodeEscapeInvalidHex:
        return QT_TRANSLATE_NOOP("Json", "Incorrect hex digit after \\u escape in string.");
    case rapidjson::kParseErrorStringUnicodeSurrogateInvalid:
        return QT_TRANSLATE_NOOP("Json", "The surrogate pair in string is invalid.");
    case rapidjson::kParseErrorStringEscapeInvalid:
        return QT_TRANSLATE_NOOP("Json", "Invalid escape character in string.");
    case rapidjson::kParseErrorStringMissQuotationMark:
        return QT_TRANSLATE_NOOP("Json", "Missing a closing quotation mark in string.");
    case rapidjson::kParseErrorNumberMissFraction:
        return QT_TRANSLATE_NOOP("Json", "Miss fraction part in number.");
    case rapidjson::kParseErrorNumberMissExponent:
        return QT_TRANSLATE_NOOP("Json", "Miss exponent in number.");
    default:
        return QT_TRANSLATE_NOOP("Json", "Invalid value.");
    }
}

} // namespace Json
} // namespace kql
