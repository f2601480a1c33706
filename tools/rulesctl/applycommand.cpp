#include "tools/rulesctl/apply/rolledfiles.h"
#include "tools/rulesctl/command.h"
#include "tools/rulesctl/documents/documenterror.h"
#include "tools/rulesctl/documents/filelist.h"
#include "tools/rulesctl/documents/outputplace.h"
#include "tools/rulesctl/documents/templatedocument.h"
#include "tools/rulesctl/fleetrun.h"
#include "tools/rulesctl/output.h"
#include "tools/rulesctl/runoptions.h"

namespace
{

ExitStatus refuse(const QString& why)
{
    Complaint::say(why);
    return ExitStatus::Unusable;
}

RolledFiles::Order orderOf(const Arguments& arguments)
{
    const auto whereTaken =
        arguments.isSet("rename") ? Rollout::WhereTaken::AddToo : Rollout::WhereTaken::Replace;
    return {arguments.word("from"), arguments.words("entries"), whereTaken};
}

/// Nothing is written before all were read and checked.
ExitStatus roll(RolledFiles& files, const OutputPlace& place, const Arguments& arguments,
                Output& output)
{
    const bool isColoured = output.isColoured();
    FleetRun run(
        files.names(), [&files, isColoured] { return files.makeWork(isColoured); }, output);
    const ExitStatus status = run.run();
    run.tellSummary({QStringLiteral("to be written"), QStringLiteral("left alone"),
                     QStringLiteral("unreadable")});
    if (arguments.isSet("dry-run"))
        return status;
    output.flush();
    QString why;
    if (arguments.isSet("output") && !place.prepare(why))
        return refuse(why);
    const QStringList unwritten = files.write([&](const QString& file) {
        return arguments.isSet("output") ? place.targetOf(file) : file;
    });
    for (const QString& complaint : unwritten)
        Complaint::say(complaint);
    return unwritten.isEmpty() ? status : ExitStatus::Unusable;
}

/// What is read and would be replaced, in a sentence; empty for nothing.
QString faultOf(const OutputPlace& place, const QStringList& files, const QString& templateFile,
                const Arguments& arguments)
{
    if (arguments.isSet("output"))
        return place.fault(files, {templateFile, arguments.word("from")});
    QString why;
    for (const QString& file : files) {
        if (arguments.isSet("in-place") && why.isEmpty())
            why = OutputPlace::replaced(file, {templateFile});
    }
    return why;
}

ExitStatus run(const Arguments& arguments, Output& output)
{
    DocumentError error;
    const auto rulesTemplate = TemplateDocument::read(arguments, error);
    if (!rulesTemplate)
        return refuse(error.text());
    const QStringList words = arguments.words("config");
    RolledFiles files(*rulesTemplate, orderOf(arguments), FileList::of(words));
    if (!files.readSource(error))
        return refuse(error.text());
    const OutputPlace place(arguments.word("output") + QLatin1Char('/'), words, files.names());
    const QString why = faultOf(place, files.names(), rulesTemplate->file, arguments);
    return why.isEmpty() ? roll(files, place, arguments, output)
                         : refuse(QStringLiteral("rulesctl: ") + why);
}

QString fault(const Arguments& arguments)
{
    for (const char* const needed : {"from", "entries", "config"}) {
        if (!arguments.isSet(needed))
            return QStringLiteral("--%1 is missing").arg(QLatin1String(needed));
    }
    const int places = int(arguments.isSet("output")) + int(arguments.isSet("in-place")) +
                       int(arguments.isSet("dry-run"));
    return places == 1 ? QString()
                       : QStringLiteral("one of -o, --in-place and --dry-run is needed");
}

} // namespace

const Command& Commands::apply()
{
    using Takes = OptionSpec::Takes;
    static const Command command{
        "apply",
        "roll rules of one configuration out to many",
        "--template F [--algorithm N:CODE] --from A --entries NAME… --config F… "
        "(-o DIR | --in-place | --dry-run) [--rename]",
        "Takes rules over, with the lanes that they belong to: one of that name is replaced, else "
        "the rule is added at the end. Figures stay where they are, a replaced lane keeps its "
        "number. All files are read and checked first. One that would have too many rules, or that "
        "Save would refuse, is named and left alone; the others are written as a save would write "
        "them, each whole or not at all. The changes of each are printed. To do it again changes "
        "nothing.\n"
        "\n"
        "Exit status: 0 all were written, 1 one was left alone, 2 one cannot be read or written, "
        "or nothing could be done.",
        "rulesctl apply --template t.json --from gate.json --entries Gate --config cameras/ "
        "--dry-run\n"
        "rulesctl apply --template t.json --from gate.json --entries Gate Yard --config cameras/ "
        "-o new/\n"
        "rulesctl apply --template t.json --from gate.json --entries Gate --config a.json "
        "--in-place",
        {{"from", '\0', Takes::Word, "A", "the configuration that has the rules"},
         {"entries", '\0', Takes::Words, "NAME…", "names of the rules"},
         RunOptions::config(),
         {"output", 'o', Takes::Word, "DIR", "the folder that the new configurations go to"},
         {"in-place", '\0', Takes::Nothing, "", "replace the files; of a result what was saved"},
         {"dry-run", '\0', Takes::Nothing, "", "write nothing, print the changes"},
         {"rename", '\0', Takes::Nothing, "",
          "add, not replace: with a number behind the name where it exists"}},
        0,
        &fault,
        &run};
    return command;
}
