#include "tools/rulesctl/command.h"
#include "tools/rulesctl/diff/difftext.h"
#include "tools/rulesctl/diff/savedconfig.h"
#include "tools/rulesctl/documents/configdocument.h"
#include "tools/rulesctl/documents/templatedocument.h"
#include "tools/rulesctl/jsonlines.h"
#include "tools/rulesctl/output.h"
#include "tools/rulesctl/pages/diffpage.h"
#include "tools/rulesctl/runoptions.h"

using kql::Json::Value;

namespace
{

const auto kHtml = QStringLiteral("html");
/// Without a picture: about as wide as one is shown beside the other, so that names can be read.
const auto kPlainSize = QStringLiteral("800x450");

/// What is given for @p document, which @p error says the place of; false with its reason there.
bool take(std::optional<ConfigDocument> document, SavedConfig& side, DocumentError& error)
{
    if (!document)
        return false;
    const QString pointer = document->pointer();
    return side.take(document->takeConfig(), pointer, error.reason);
}

Value changesOf(const ConfigDiff& diff)
{
    Value changes(kql::Json::ValueType::Array);
    for (const Change& change : diff.changes())
        changes.append(change.toJson());
    return changes;
}

Value toJson(const ConfigDiff& diff, const TemplateDocument& rulesTemplate,
             const Arguments& arguments)
{
    Value json;
    json["format"] = 1;
    json["command"] = "diff";
    json["template"] = rulesTemplate.file;
    json["a"] = arguments.operands()[0];
    json["b"] = arguments.operands()[1];
    json["same"] = diff.isSame();
    json["changes"] = changesOf(diff);
    return json;
}

bool isHtml(const Arguments& arguments)
{
    return arguments.word("format") == kHtml;
}

ExitStatus compareFiles(const TemplateDocument& rulesTemplate, const Ground& ground,
                        const Arguments& arguments, Output& output)
{
    SavedConfig a(rulesTemplate);
    SavedConfig b(rulesTemplate);
    auto status = ExitStatus::Clean;
    SavedConfig* side = &a;
    for (const QString& file : arguments.operands()) {
        DocumentError error{file, 0, 0, {}};
        auto document = ConfigDocument::read(file, error);
        if (!take(std::move(document), *side, error)) {
            Complaint::say(error.text());
            status = ExitStatus::Unusable;
        }
        side = &b;
    }
    if (status != ExitStatus::Clean)
        return status;
    const ConfigDiff diff(a.compared(), b.compared());
    if (isHtml(arguments))
        output.write(
            DiffPage::of(diff, {a, arguments.operands()[0]}, {b, arguments.operands()[1]}, ground));
    else if (RunOptions::isJson(arguments))
        output.writeLine(toJson(diff, rulesTemplate, arguments).toCompactText());
    else
        output.write(DiffText::of(diff, arguments.operands()[0], arguments.operands()[1],
                                  output.isColoured())
                         .toUtf8());
    return diff.isSame() ? ExitStatus::Clean : ExitStatus::Differs;
}

Value answerOf(const ConfigDiff& diff)
{
    Value answer;
    answer["status"] = "ok";
    answer["same"] = diff.isSame();
    answer["changes"] = changesOf(diff);
    answer["error"] = Value();
    return answer;
}

Value refusal(const DocumentError& error)
{
    Value answer;
    answer["status"] = "unreadable";
    answer["same"] = false;
    answer["changes"] = Value(kql::Json::ValueType::Array);
    answer["error"] = error.toJson();
    return answer;
}

ExitStatus compareLines(const TemplateDocument& rulesTemplate, Output& output)
{
    SavedConfig a(rulesTemplate);
    SavedConfig b(rulesTemplate);
    const auto answer = [&a, &b](JsonLine& line) {
        DocumentError error = line.place();
        const bool areTaken =
            take(ConfigDocument::of(std::move(line.object["a"]), error), a, error) &&
            take(ConfigDocument::of(std::move(line.object["b"]), error), b, error);
        return areTaken ? answerOf(ConfigDiff(a.compared(), b.compared())) : refusal(error);
    };
    return JsonLines::run({QStringLiteral("a"), QStringLiteral("b")}, answer, output);
}

ExitStatus run(const Arguments& arguments, Output& output)
{
    DocumentError error;
    const auto rulesTemplate = TemplateDocument::read(arguments, error);
    if (!rulesTemplate) {
        Complaint::say(error.text());
        return ExitStatus::Unusable;
    }
    if (arguments.isSet("jsonl"))
        return compareLines(*rulesTemplate, output);
    error = {arguments.word("picture"), 0, 0, {}};
    const auto ground = arguments.isSet("picture") ? Ground::ofFile(error.file, error.reason)
                                                   : Ground::ofSize(kPlainSize);
    if (!ground) {
        Complaint::say(error.text());
        return ExitStatus::Unusable;
    }
    return compareFiles(*rulesTemplate, *ground, arguments, output);
}

QString fault(const Arguments& arguments)
{
    const bool hasLines = arguments.isSet("jsonl");
    const QString format =
        RunOptions::formatFault(arguments, {QStringLiteral("text"), QStringLiteral("json"), kHtml});
    if (!format.isEmpty())
        return format;
    if (arguments.isSet("picture") && !isHtml(arguments))
        return QStringLiteral("--picture goes with --format html alone");
    if (hasLines && !arguments.operands().isEmpty())
        return QStringLiteral("--jsonl does not go beside files");
    return hasLines || arguments.operands().size() == 2 ? QString()
                                                        : QStringLiteral("two files are compared");
}

} // namespace

const Command& Commands::diff()
{
    static const Command command{
        "diff",
        "tell what changed between two configurations",
        "--template F [--algorithm N:CODE] "
        "(A B [--format text|json|html] [--picture F] | --jsonl)",
        "Compares two configurations as a save would write them, and tells what changed in the "
        "operator's words. What no attribute names is told, too, but makes no difference.\n"
        "\n"
        "Exit status: 0 both are the same, 1 they differ, 2 one cannot be read. With --jsonl, "
        "where each line has objects \"a\" and \"b\", 0 when each line got its answer.",
        "rulesctl diff --template template.json before.json after.json\n"
        "rulesctl diff --template template.json before.json after.json --format json\n"
        "rulesctl diff --template template.json a.json b.json --picture gate.jpg --format html "
        "> changes.html",
        {RunOptions::format("text|json|html"),
         {"picture", '\0', OptionSpec::Takes::Word, "F", "what html shows beneath the figures"},
         RunOptions::jsonl()},
        2,
        &fault,
        &run,
        true};
    return command;
}
