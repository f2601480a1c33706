#include "tools/rulesctl/documents/templatedocument.h"

#include "Protocol/ruleparser.h"
#include "tools/rulesctl/arguments.h"
#include "tools/rulesctl/documents/documentfile.h"

using kql::Json::Value;

std::optional<TemplateDocument> TemplateDocument::read(const Arguments& arguments,
                                                       DocumentError& error)
{
    const QString file = arguments.word("template");
    std::optional<Value> document = DocumentFile::read(file, error);
    if (!document)
        return std::nullopt;
    if (!document->isMember("configDescription")) {
        error = {file, 1, 1, QStringLiteral("the template has no \"configDescription\"")};
        return std::nullopt;
    }
    QString why;
    if (!RuleParser().parseTemplate(Value(*document), why)) {
        error = {file, 0, 0, why};
        return std::nullopt;
    }
    const auto algorithm = Algorithm::parse(arguments.word("algorithm"));
    return TemplateDocument{file, *std::move(document), algorithm.value_or(Algorithm())};
}
