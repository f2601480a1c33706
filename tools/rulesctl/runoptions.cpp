#include "tools/rulesctl/runoptions.h"

using Takes = OptionSpec::Takes;

OptionSpec RunOptions::config()
{
    return {"config", '\0', Takes::Words, "F…",
            "configurations, or results that have one; a folder stands for the files *.json in it"};
}

OptionSpec RunOptions::jsonl()
{
    return {"jsonl", '\0', Takes::Nothing, "",
            "answer objects on standard input, a line each, with a line each"};
}

OptionSpec RunOptions::format(const char* valueName)
{
    return {"format", '\0', Takes::Word, valueName, "how to answer; text without it"};
}

QString RunOptions::inputFault(const Arguments& arguments)
{
    const bool hasLines = arguments.isSet("jsonl");
    if (arguments.isSet("config") && hasLines)
        return QStringLiteral("--jsonl does not go beside --config");
    return arguments.isSet("config") || hasLines ? QString()
                                                 : QStringLiteral("--config or --jsonl is missing");
}

QString RunOptions::formatFault(const Arguments& arguments, const QStringList& names)
{
    const QString name = arguments.word("format");
    if (!arguments.isSet("format"))
        return {};
    if (!names.contains(name))
        return QStringLiteral("there is no format \"%1\"").arg(name);
    return arguments.isSet("jsonl") && !isJson(arguments)
               ? QStringLiteral("--format %1 does not go beside --jsonl").arg(name)
               : QString();
}

bool RunOptions::isJson(const Arguments& arguments)
{
    return arguments.word("format") == QLatin1String("json");
}
