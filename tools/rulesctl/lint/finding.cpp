#include "tools/rulesctl/lint/finding.h"

#include "tools/rulesctl/plainline.h"

using kql::Json::Value;

namespace
{

Value textOrNull(const QString& text)
{
    return text.isNull() ? Value() : Value(text);
}

Value listOrNull(const std::optional<QStringList>& texts)
{
    if (!texts)
        return {};
    Value list(kql::Json::ValueType::Array);
    for (const QString& text : *texts)
        list.append(Value(text));
    return list;
}

} // namespace

Value Finding::toJson() const
{
    Value json(kql::Json::ValueType::Object);
    json["code"] = Value(code);
    json["severity"] = Value(isError() ? "error" : "warning");
    json["document"] = Value(document == Document::Template ? "template" : "config");
    json["pointer"] = Value(pointer);
    json["line"] = Value(line);
    json["column"] = Value(column);
    json["found"] = found;
    json["expected"] = listOrNull(expected);
    json["suggestion"] = textOrNull(suggestion);
    json["message"] = Value(message);
    return json;
}

QString Finding::toLine(const QString& file, bool isColoured) const
{
    const QString word = QLatin1String(isError() ? "error" : "warning");
    const QString colour =
        isError() ? QStringLiteral("\033[31m%1\033[m") : QStringLiteral("\033[33m%1\033[m");
    return QStringLiteral("%1:%2:%3: %4: %5 [%6]")
        .arg(PlainLine::of(file), QString::number(line), QString::number(column),
             isColoured ? colour.arg(word) : word, PlainLine::of(message),
             QString::fromStdString(code));
}
