#include "tools/rulesctl/program.h"

#include "tools/rulesctl/algorithm.h"
#include "tools/rulesctl/command.h"
#include "tools/rulesctl/helptext.h"
#include "tools/rulesctl/output.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QTextCodec>
#endif

#include <clocale>
#ifdef Q_OS_UNIX
#include <langinfo.h>
#endif

// Resources of a static library are registered by name, from outside any namespace.
static void initResources()
{
    Q_INIT_RESOURCE(rulesctltranslations);
}

namespace
{

ExitStatus refuse(const QString& why, const QString& help)
{
    Complaint::say(QStringLiteral("rulesctl: %1").arg(why));
    Complaint::say(QStringLiteral("Try \"rulesctl %1\".").arg(help));
    return ExitStatus::Unusable;
}

/// Installs what the module says in @p language; false when there is no such translation.
bool speak(const QString& language, QTranslator& translator)
{
    if (language.isEmpty() || language == QLatin1String("en"))
        return true;
    initResources();
    return translator.load(QStringLiteral(":/translations/IntelligentRulesUI_") + language) &&
           QCoreApplication::installTranslator(&translator);
}

QString faultOf(const Command& command, const Arguments& arguments)
{
    if (!arguments.isSet("template"))
        return QStringLiteral("--template is missing");
    if (arguments.isSet("algorithm") && !Algorithm::parse(arguments.word("algorithm")))
        return QStringLiteral("--algorithm takes N:CODE, a number and a text");
    return command.fault ? command.fault(arguments) : QString();
}

ExitStatus runCommand(const Command& command, const QStringList& words, Output& output)
{
    const QString help = QString::fromLatin1(command.name) + QStringLiteral(" --help");
    Arguments arguments;
    QString why;
    if (!arguments.parse(words, Commands::optionsOf(command), command.operandCount, why))
        return refuse(why, help);
    if (arguments.isSet("help")) {
        output.write(HelpText::of(command).toUtf8());
        return ExitStatus::Clean;
    }
    why = faultOf(command, arguments);
    if (!why.isEmpty())
        return refuse(why, help);
    QTranslator translator;
    const QString language = arguments.word("language");
    if (!speak(language, translator))
        return refuse(QStringLiteral("there is no translation \"%1\"").arg(language), help);
    return command.run(arguments, output);
}

ExitStatus runWords(const QStringList& words, Output& output)
{
    const QString help = QStringLiteral("--help");
    const QString name = words.value(0);
    if (name == help || name == QLatin1String("-h") || name == QLatin1String("help"))
        output.write(HelpText::ofProgram().toUtf8());
    else if (name == QLatin1String("--version"))
        output.write(HelpText::version().toUtf8());
    else if (name == QLatin1String("--man"))
        output.write(HelpText::manual().toUtf8());
    else if (const Command* command = Commands::find(name))
        return runCommand(*command, words.mid(1), output);
    else if (name.isEmpty())
        return refuse(QStringLiteral("a command is missing"), help);
    else
        return refuse(QStringLiteral("there is no command \"%1\"").arg(name), help);
    return ExitStatus::Clean;
}

} // namespace

bool Program::paints(const char* command)
{
    const Command* const found = Commands::find(QString::fromLatin1(command));
    return found && found->paints;
}

void Program::useEnglish()
{
    QLocale::setDefault(QLocale::c());
#ifdef Q_OS_UNIX
    std::setlocale(LC_MESSAGES, "C");
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // which takes it for UTF-8 by itself
    // Scheduled jobs and containers mostly have no locale, but names of files as everywhere.
    if (qstrcmp(::nl_langinfo(CODESET), "ANSI_X3.4-1968") == 0)
        QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
#endif
#endif
}

int Program::run(const QStringList& words)
{
    Output output;
    ExitStatus status = runWords(words, output);
    if (!output.flush()) {
        Complaint::say(QStringLiteral("rulesctl: output was not written: ") + output.fault());
        status = ExitStatus::Unusable;
    }
    return static_cast<int>(status);
}
