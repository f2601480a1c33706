#include "Protocol/ruleparser.h"
#include "host/api/wholefile.h"
#include "tools/rulesctl/command.h"
#include "tools/rulesctl/configanswer.h"
#include "tools/rulesctl/documents/configdocument.h"
#include "tools/rulesctl/documents/filelist.h"
#include "tools/rulesctl/documents/loadedrules.h"
#include "tools/rulesctl/documents/outputplace.h"
#include "tools/rulesctl/documents/templatedocument.h"
#include "tools/rulesctl/fleetrun.h"
#include "tools/rulesctl/jsonlines.h"
#include "tools/rulesctl/output.h"
#include "tools/rulesctl/runoptions.h"

#include <memory>

using kql::Json::Value;

namespace
{

constexpr char kOutput[] = "output";

/// The configuration as a save would write it, "config" among the details; null, with the reason
/// as an error, where it would write nothing. @p error is where the document is.
ConfigAnswer convert(LoadedRules& rules, Value config, DocumentError error)
{
    ConfigAnswer answer;
    answer.status = ExitStatus::Unusable;
    answer.word = QStringLiteral("unreadable");
    Value written;
    if (rules.load(std::move(config), error.reason)) {
        answer.status = ExitStatus::Clean;
        answer.word = QStringLiteral("ok");
        if (!rules.parser().writeData(written, error.reason)) {
            answer.status = ExitStatus::Differs;
            answer.word = QStringLiteral("fails");
        }
    }
    answer.details["config"] = std::move(written);
    if (answer.status != ExitStatus::Clean)
        answer.error = error;
    return answer;
}

FileAnswer complaint(const DocumentError& error, ExitStatus status)
{
    return {{}, error.text(), status};
}

/// Writes @p text to @p target, or to standard output where there is none.
FileAnswer written(const QString& file, const QByteArray& text, const QString& target)
{
    if (target.isEmpty())
        return {text, {}, ExitStatus::Clean};
    QString why;
    if (!UICommonMdl::WholeFile::write(target, text, why))
        return {{}, why, ExitStatus::Unusable};
    return {
        QStringLiteral("%1: written to %2\n").arg(file, target).toUtf8(), {}, ExitStatus::Clean};
}

FileAnswer convertFile(LoadedRules& rules, const QString& file, const QString& target)
{
    DocumentError error;
    auto document = ConfigDocument::read(file, error);
    if (!document)
        return complaint(error, ExitStatus::Unusable);
    ConfigAnswer answer = convert(rules, document->takeConfig(), {file, 0, 0, {}});
    if (answer.error)
        return complaint(*answer.error, answer.status);
    Value config = std::move(answer.details["config"]);
    // A result stays one where it is replaced itself.
    if (OutputPlace::isSame(file, target))
        config = (*std::move(document)).with(std::move(config));
    const std::string text = config.toStyledString();
    if (text.empty())
        return complaint({file, 0, 0, QStringLiteral("The configuration is too long.")},
                         ExitStatus::Differs);
    return written(file, QByteArray::fromStdString(text), target);
}

ExitStatus refuse(const QString& why)
{
    Complaint::say(QStringLiteral("rulesctl: ") + why);
    return ExitStatus::Unusable;
}

ExitStatus convertFiles(const TemplateDocument& rulesTemplate, const Arguments& arguments,
                        Output& output)
{
    const QStringList words = arguments.words("config");
    const QStringList files = FileList::of(words);
    const OutputPlace place(arguments.word(kOutput), words, files);
    const bool isToOutput = !arguments.isSet(kOutput);
    if (isToOutput && files.size() > 1)
        return refuse(QStringLiteral("several configurations need a folder with -o"));
    QString why = isToOutput ? QString() : place.fault(files, {rulesTemplate.file});
    if (!why.isEmpty())
        return refuse(why);
    if (!isToOutput && !place.prepare(why)) {
        Complaint::say(why);
        return ExitStatus::Unusable;
    }
    const auto makeWork = [&rulesTemplate, &place, isToOutput] {
        const auto rules = std::make_shared<LoadedRules>(rulesTemplate);
        return [rules, &place, isToOutput](const QString& file) {
            return convertFile(*rules, file, isToOutput ? QString() : place.targetOf(file));
        };
    };
    FleetRun run(files, makeWork, output);
    const ExitStatus status = run.run();
    run.tellSummary({QStringLiteral("ok"), QStringLiteral("fail"), QStringLiteral("unusable")});
    return status;
}

ExitStatus convertLines(const TemplateDocument& rulesTemplate, Output& output)
{
    LoadedRules rules(rulesTemplate);
    const auto answer = [&rules](JsonLine& line) {
        DocumentError error = line.place();
        auto document = ConfigDocument::of(std::move(line.object["config"]), error);
        if (document)
            return convert(rules, document->takeConfig(), error).toJson({});
        ConfigAnswer nothing;
        nothing.details["config"] = Value();
        return nothing.asUnreadable(error).toJson({});
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
    return arguments.isSet("jsonl") ? convertLines(*rulesTemplate, output)
                                    : convertFiles(*rulesTemplate, arguments, output);
}

QString fault(const Arguments& arguments)
{
    if (arguments.isSet(kOutput) && arguments.isSet("jsonl"))
        return QStringLiteral("-o does not go beside --jsonl");
    return RunOptions::inputFault(arguments);
}

} // namespace

const Command& Commands::convert()
{
    static const Command command{
        "convert",
        "write configurations as a save would",
        "--template F [--algorithm N:CODE] (--config F… [-o F|DIR] | --jsonl)",
        "Reads each configuration and writes it as a save of the rules window would, checking "
        "nothing. Without -o one configuration goes to standard output. With several, or a "
        "folder, -o names a folder, which takes files of the same names. Each file is written as "
        "a whole or not at all.\n"
        "\n"
        "What is written is the configuration alone. Where -o leads to the result itself that was "
        "read, its \"channelAbilityPO\" is replaced.\n"
        "\n"
        "Exit status: 0 all are written, 1 nothing could be made of one, 2 one cannot be read or "
        "written, or nothing could be done. With --jsonl 0 when each line got its answer.",
        "rulesctl convert --template template.json --config gate.json -o gate-saved.json\n"
        "rulesctl convert --template template.json --config cameras/ -o converted/\n"
        "rulesctl convert --template template.json --jsonl < cameras.jsonl",
        {RunOptions::config(),
         {kOutput, 'o', OptionSpec::Takes::Word, "F|DIR", "where to write"},
         RunOptions::jsonl()},
        0,
        &fault,
        &run};
    return command;
}
