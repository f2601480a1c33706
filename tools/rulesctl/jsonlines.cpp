#include "tools/rulesctl/jsonlines.h"

#include "host/json/reader.h"
#include "tools/rulesctl/documents/documentfile.h"
#include "tools/rulesctl/documents/rawmember.h"
#include "tools/rulesctl/inputlines.h"
#include "tools/rulesctl/output.h"

#include <string_view>

using kql::Json::Value;

namespace
{

const auto kInput = QStringLiteral("-");

std::string_view viewOf(const QByteArray& text)
{
    return {text.constData(), static_cast<std::size_t>(text.size())};
}

/// What keeps @p line from being answered, in @p error; its object else.
bool readObject(const QStringList& documents, JsonLine& line, DocumentError& error)
{
    error = line.place();
    kql::Json::Reader reader;
    if (!reader.parse(viewOf(line.text), line.object)) {
        error.column = reader.errorColumn();
        error.reason = reader.errorText();
        return false;
    }
    const Value& object = line.object;
    const Value& id = object["id"];
    if (!object.isObject())
        error.reason = QStringLiteral("the line is no object");
    else if (!id.isString() && !id.isNumeric())
        error.reason = QStringLiteral("\"id\" is no text and no number");
    for (const QString& name : documents) {
        if (error.reason.isEmpty() && !object[name.toStdString()].isObject())
            error.reason = QStringLiteral("\"%1\" is no object").arg(name);
    }
    return error.reason.isEmpty();
}

/// @p answer, an object, behind an "id" as it was written.
QByteArray withId(const JsonLine& line, const Value& answer)
{
    const std::string_view written = RawMember::find(viewOf(line.text), "id");
    const QByteArray id = written.empty()
                              ? line.object["id"].toCompactText().toUtf8()
                              : QByteArray(written.data(), static_cast<int>(written.size()));
    return "{\"id\":" + id + ',' + answer.toCompactText().toUtf8().mid(1) + '\n';
}

QByteArray refusal(const DocumentError& error)
{
    Value answer;
    answer["id"] = Value();
    answer["line"] = error.line;
    answer["status"] = "unreadable";
    answer["error"] = error.toJson();
    return answer.toCompactText().toUtf8() + '\n';
}

} // namespace

DocumentError JsonLine::place() const
{
    return {kInput, number, 1, {}};
}

ExitStatus JsonLines::run(const QStringList& documents, const Answer& answer, Output& output)
{
    InputLines input;
    JsonLine line;
    while (!output.isBroken() && input.next(line.text)) {
        line.number = input.number();
        DocumentError error{kInput, line.number, 1, DocumentFile::tooLongText()};
        if (!input.isTooLong() && line.text.trimmed().isEmpty())
            continue;
        const bool isObject = !input.isTooLong() && readObject(documents, line, error);
        output.write(isObject ? withId(line, answer(line)) : refusal(error));
        output.flush();
    }
    if (input.fault().isEmpty())
        return ExitStatus::Clean;
    Complaint::say(kInput + QStringLiteral(": ") + input.fault());
    return ExitStatus::Unusable;
}
