#include "host/json/reader.h"
#include "tools/rulesctl/command.h"
#include "tools/rulesctl/configanswer.h"
#include "tools/rulesctl/documents/configdocument.h"
#include "tools/rulesctl/documents/documentfile.h"
#include "tools/rulesctl/documents/filelist.h"
#include "tools/rulesctl/documents/templatedocument.h"
#include "tools/rulesctl/fleetrun.h"
#include "tools/rulesctl/jsonlines.h"
#include "tools/rulesctl/lint/againstlint.h"
#include "tools/rulesctl/lint/configlint.h"
#include "tools/rulesctl/lint/lintedtemplate.h"
#include "tools/rulesctl/lint/templatelint.h"
#include "tools/rulesctl/output.h"
#include "tools/rulesctl/runoptions.h"

#include <atomic>
#include <memory>

using kql::Json::Value;

namespace
{

const auto kAgainst = "against";

/// A template, be it too large for the rules window: that is a finding, too.
struct ReadTemplate {
    QByteArray text;
    TemplateDocument document;
    std::unique_ptr<LintedTemplate> linted;

    bool isUsable() const { return linted->tooLarge().empty(); }
};

struct Counts {
    std::atomic<int> errors{0};
    std::atomic<int> warnings{0};

    void add(const Findings& findings)
    {
        for (const Finding& finding : findings)
            ++(finding.isError() ? errors : warnings);
    }
};

std::string_view viewOf(const QByteArray& text)
{
    return {text.constData(), static_cast<std::size_t>(text.size())};
}

std::optional<ReadTemplate> readTemplate(const QString& file, const QString& algorithm,
                                         DocumentError& error)
{
    const std::optional<QByteArray> text = DocumentFile::readBytes(file, error);
    std::optional<Value> document =
        text ? DocumentFile::parse(*text, file, error) : std::optional<Value>();
    if (!document)
        return std::nullopt;
    if (!document->isMember("configDescription")) {
        error = {file, 1, 1, QStringLiteral("the template has no \"configDescription\"")};
        return std::nullopt;
    }
    const Algorithm known = Algorithm::parse(algorithm).value_or(Algorithm());
    auto linted = std::make_unique<LintedTemplate>(*document, known.number);
    return ReadTemplate{*text, {file, *std::move(document), known}, std::move(linted)};
}

Value toJson(const Findings& findings)
{
    Value list(kql::Json::ValueType::Array);
    for (const Finding& finding : findings)
        list.append(finding.toJson());
    return list;
}

QByteArray toLines(const Findings& findings, const QString& file, bool isColoured)
{
    QByteArray lines;
    for (const Finding& finding : findings)
        lines += finding.toLine(file, isColoured).toUtf8() + '\n';
    return lines;
}

ConfigAnswer answerOf(const Findings& findings)
{
    ConfigAnswer answer;
    answer.status = findings.empty() ? ExitStatus::Clean : ExitStatus::Differs;
    answer.word = findings.empty() ? QStringLiteral("clean") : QStringLiteral("findings");
    answer.details["findings"] = toJson(findings);
    return answer;
}

/// The findings of @p file; nothing with @p error where it is no configuration.
std::optional<Findings> lintFile(ConfigLint& lint, const QString& file, DocumentError& error)
{
    const std::optional<QByteArray> text = DocumentFile::readBytes(file, error);
    std::optional<Value> json =
        text ? DocumentFile::parse(*text, file, error) : std::optional<Value>();
    if (!json)
        return std::nullopt;
    error = {file, 1, 1, {}};
    const auto document = ConfigDocument::of(*std::move(json), error);
    if (!document)
        return std::nullopt;
    return lint.run({viewOf(*text), document->pointer().toStdString(), document->config()});
}

FileAnswer answerFile(ConfigLint& lint, const QString& file, bool isJson, bool isColoured,
                      Counts& counts)
{
    DocumentError error;
    const std::optional<Findings> findings = lintFile(lint, file, error);
    const ConfigAnswer answer = findings ? answerOf(*findings) : answerOf({}).asUnreadable(error);
    FileAnswer given;
    given.status = answer.status;
    if (findings)
        counts.add(*findings);
    else
        given.complaint = error.text();
    Value named;
    named["config"] = file;
    if (isJson)
        given.output = answer.toJson(std::move(named)).toCompactText().toUtf8();
    else if (findings)
        given.output = toLines(*findings, file, isColoured);
    return given;
}

QByteArray beginning(const QString& file, const Findings& findings)
{
    Value head;
    head["format"] = 1;
    head["command"] = "lint";
    head["template"] = file;
    head["findings"] = toJson(findings);
    return head.toCompactText().toUtf8().chopped(1) + ",\"results\":[\n";
}

QByteArray ending(const Counts& counts)
{
    Value summary;
    summary["errors"] = counts.errors.load();
    summary["warnings"] = counts.warnings.load();
    return "\n],\"summary\":" + summary.toCompactText().toUtf8() + "}\n";
}

/// With a template that the rules window refuses no configuration is read.
FleetRun::Work workWith(const TemplateDocument& rulesTemplate, bool isUsable, bool isJson,
                        bool isColoured, Counts& counts)
{
    if (!isUsable)
        return [isJson](const QString& file) {
            const DocumentError error{file, 0, 0,
                                      QStringLiteral("not read: the template is too large")};
            FileAnswer given{{}, error.text(), ExitStatus::Unusable};
            Value named;
            named["config"] = file;
            if (isJson)
                given.output = answerOf({})
                                   .asUnreadable(error)
                                   .toJson(std::move(named))
                                   .toCompactText()
                                   .toUtf8();
            return given;
        };
    const auto lint = std::make_shared<ConfigLint>(rulesTemplate);
    return [lint, isJson, isColoured, &counts](const QString& file) {
        return answerFile(*lint, file, isJson, isColoured, counts);
    };
}

ExitStatus lintFiles(const ReadTemplate& read, const Findings& findings, const Arguments& arguments,
                     Output& output)
{
    const bool isJson = RunOptions::isJson(arguments);
    const bool isColoured = !isJson && output.isColoured();
    Counts counts;
    counts.add(findings);
    const bool isUsable = read.isUsable();
    FleetRun run(
        FileList::of(arguments.words("config")),
        [&, isUsable] { return workWith(read.document, isUsable, isJson, isColoured, counts); },
        output);
    if (isJson)
        run.setSeparator(",\n");
    output.write(isJson ? beginning(read.document.file, findings)
                        : toLines(findings, read.document.file, isColoured));
    const ExitStatus ofTemplate = findings.empty() ? ExitStatus::Clean : ExitStatus::Differs;
    const ExitStatus ofFiles = run.run();
    // What keeps configurations from being read was found in the template, and none of them is bad.
    const ExitStatus status = isUsable ? worst(ofTemplate, ofFiles) : ofTemplate;
    if (isJson)
        output.write(ending(counts));
    run.tellSummary(
        {QStringLiteral("clean"), QStringLiteral("with findings"), QStringLiteral("unreadable")});
    return status;
}

ExitStatus lintLines(const ReadTemplate& read, Output& output)
{
    ConfigLint lint(read.document);
    const auto answer = [&lint](JsonLine& line) {
        DocumentError error = line.place();
        const auto document = ConfigDocument::of(Value(line.object["config"]), error);
        if (!document)
            return answerOf({}).asUnreadable(error).toJson({});
        return answerOf(lint.run({viewOf(line.text), "/config" + document->pointer().toStdString(),
                                  document->config(), line.number}))
            .toJson({});
    };
    return JsonLines::run({QStringLiteral("config")}, answer, output);
}

ExitStatus refuse(const DocumentError& error)
{
    Complaint::say(error.text());
    return ExitStatus::Unusable;
}

ExitStatus run(const Arguments& arguments, Output& output)
{
    DocumentError error;
    const QString algorithm = arguments.word("algorithm");
    const auto read = readTemplate(arguments.word("template"), algorithm, error);
    if (!read)
        return refuse(error);
    const auto refuseAsLarge = [](const ReadTemplate& large) {
        return refuse({large.document.file, 0, 0, QStringLiteral("the template is too large")});
    };
    if (arguments.isSet("jsonl"))
        return read->isUsable() ? lintLines(*read, output) : refuseAsLarge(*read);
    Findings more;
    if (arguments.isSet(kAgainst)) {
        const auto older = readTemplate(arguments.word(kAgainst), algorithm, error);
        if (!older)
            return refuse(error);
        if (!older->isUsable())
            return refuseAsLarge(*older);
        more = AgainstLint::run(*read->linted, *older->linted);
    }
    return lintFiles(*read, TemplateLint::run(*read->linted, viewOf(read->text), more), arguments,
                     output);
}

QString fault(const Arguments& arguments)
{
    const QString format =
        RunOptions::formatFault(arguments, {QStringLiteral("text"), QStringLiteral("json")});
    if (!format.isEmpty())
        return format;
    if (arguments.isSet("jsonl") && arguments.isSet(kAgainst))
        return QStringLiteral("--jsonl does not go beside --against");
    const bool hasInput = arguments.isSet("config") || arguments.isSet("jsonl");
    return hasInput ? RunOptions::inputFault(arguments) : QString();
}

} // namespace

const Command& Commands::lint()
{
    static const Command command{
        "lint",
        "tell what of a template is not read, and what a save would lose",
        "--template F [--algorithm N:CODE] [--config F… | --jsonl] [--against OLD-TEMPLATE] "
        "[--format text|json]",
        "Judges a template by what the rules window reads of it, and each configuration by what a "
        "save would drop or change. A finding is an error where the device or the operator gets "
        "something else than is written, else a warning. docs/lint.md has the codes.\n"
        "\n"
        "Exit status: 0 nothing was found, 1 something was, 2 a document cannot be read. With "
        "--jsonl 0 when each line got its answer; only configurations are judged then.",
        "rulesctl lint --template template.json\n"
        "rulesctl lint --template template.json --config cameras/ --format json\n"
        "rulesctl lint --template template.json --against template-1.0.json",
        {RunOptions::config(),
         RunOptions::jsonl(),
         {kAgainst, '\0', OptionSpec::Takes::Word, "OLD-TEMPLATE",
          "tell also what configurations of this older template lose"},
         RunOptions::format()},
        0,
        &fault,
        &run};
    return command;
}
