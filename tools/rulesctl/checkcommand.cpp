#include "tools/rulesctl/command.h"
#include "tools/rulesctl/configanswer.h"
#include "tools/rulesctl/documents/configdocument.h"
#include "tools/rulesctl/documents/filelist.h"
#include "tools/rulesctl/documents/loadedrules.h"
#include "tools/rulesctl/documents/templatedocument.h"
#include "tools/rulesctl/fleetrun.h"
#include "tools/rulesctl/jsonlines.h"
#include "tools/rulesctl/output.h"
#include "tools/rulesctl/runoptions.h"
#include "tools/rulesctl/savefailure.h"

#include <memory>

using kql::Json::Value;

namespace
{

ConfigAnswer answerOf(const std::vector<SaveFailure>& failures)
{
    ConfigAnswer answer;
    QStringList texts;
    for (const SaveFailure& failure : failures)
        texts.append(failure.text());
    answer.status = failures.empty() ? ExitStatus::Clean : ExitStatus::Differs;
    answer.word = failures.empty() ? QStringLiteral("ok") : QStringLiteral("fails");
    answer.text = texts.join(QStringLiteral("; "));
    answer.details["failures"] = SaveFailure::toJson(failures);
    return answer;
}

/// Without a document @p error says why; with one it is where the document is.
ConfigAnswer check(LoadedRules& rules, std::optional<ConfigDocument> document, DocumentError error)
{
    if (!document || !rules.load(document->takeConfig(), error.reason))
        return answerOf({}).asUnreadable(error);
    return answerOf(SaveFailure::of(rules));
}

FileAnswer checkFile(LoadedRules& rules, const QString& file, bool isJson, bool isColoured)
{
    DocumentError error{file, 0, 0, {}};
    auto document = ConfigDocument::read(file, error);
    const ConfigAnswer answer = check(rules, std::move(document), error);
    FileAnswer given;
    given.status = answer.status;
    if (answer.error)
        given.complaint = answer.error->text();
    Value named;
    named["config"] = file;
    given.output = isJson ? answer.toJson(std::move(named)).toCompactText().toUtf8()
                          : answer.toLine(file, isColoured);
    return given;
}

/// What stands before the results, without what ends it.
QByteArray beginning(const TemplateDocument& rulesTemplate)
{
    Value head;
    head["format"] = 1;
    head["command"] = "check";
    head["template"] = rulesTemplate.file;
    return head.toCompactText().toUtf8().chopped(1) + ",\"results\":[\n";
}

QByteArray ending(const FleetRun& run)
{
    Value summary;
    summary["ok"] = run.count(ExitStatus::Clean);
    summary["fails"] = run.count(ExitStatus::Differs);
    summary["unreadable"] = run.count(ExitStatus::Unusable);
    return "\n],\"summary\":" + summary.toCompactText().toUtf8() + "}\n";
}

ExitStatus checkFiles(const TemplateDocument& rulesTemplate, const Arguments& arguments,
                      Output& output)
{
    const bool isJson = RunOptions::isJson(arguments);
    const bool isColoured = !isJson && output.isColoured();
    const auto makeWork = [&rulesTemplate, isJson, isColoured] {
        const auto rules = std::make_shared<LoadedRules>(rulesTemplate);
        return [rules, isJson, isColoured](const QString& file) {
            return checkFile(*rules, file, isJson, isColoured);
        };
    };
    FleetRun run(FileList::of(arguments.words("config")), makeWork, output);
    if (isJson) {
        run.setSeparator(",\n");
        output.write(beginning(rulesTemplate));
    }
    const ExitStatus status = run.run();
    if (isJson)
        output.write(ending(run));
    run.tellSummary({QStringLiteral("ok"), QStringLiteral("fail"), QStringLiteral("unreadable")});
    return status;
}

ExitStatus checkLines(const TemplateDocument& rulesTemplate, Output& output)
{
    LoadedRules rules(rulesTemplate);
    const auto answer = [&rules](JsonLine& line) {
        DocumentError error = line.place();
        auto document = ConfigDocument::of(std::move(line.object["config"]), error);
        return check(rules, std::move(document), error).toJson({});
    };
    return JsonLines::run({QStringLiteral("config")}, answer, output);
}

ExitStatus run(const Arguments& arguments, Output& output)
{
    DocumentError error;
    const auto rulesTemplate = TemplateDocument::read(arguments, error);
    if (!rulesTemplate) {
        Complaint::say(error.text());
        return ExitStatus::Unusable;
    }
    return arguments.isSet("jsonl") ? checkLines(*rulesTemplate, output)
                                    : checkFiles(*rulesTemplate, arguments, output);
}

QString fault(const Arguments& arguments)
{
    const QString format =
        RunOptions::formatFault(arguments, {QStringLiteral("text"), QStringLiteral("json")});
    return format.isEmpty() ? RunOptions::inputFault(arguments) : format;
}

} // namespace

const Command& Commands::check()
{
    static const Command command{
        "check",
        "tell what a save would refuse",
        "--template F [--algorithm N:CODE] (--config F… | --jsonl) [--format text|json]",
        "Looks at each configuration as the rules window has it after the load, and tells what it "
        "would answer to Save: of each section the first failure, then two rules of one name, then "
        "what cannot be written. No figure is started.\n"
        "\n"
        "Exit status: 0 all may be saved, 1 one fails, 2 one cannot be read, or nothing could be "
        "done. With --jsonl 0 when each line got its answer.",
        "rulesctl check --template template.json --config gate.json yard.json\n"
        "rulesctl check --template template.json --config cameras/ --format json\n"
        "rulesctl check --template template.json --jsonl < cameras.jsonl",
        {RunOptions::config(), RunOptions::format(), RunOptions::jsonl()},
        0,
        &fault,
        &run};
    return command;
}
