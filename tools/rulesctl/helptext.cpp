#include "tools/rulesctl/helptext.h"

#include "tools/rulesctl/command.h"

#include <QStringList>

namespace
{

constexpr int kWidth = 80;
constexpr int kIndent = 2;
constexpr int kNameWidth = 24;

/// @p text broken between words, each line but the first behind @p indent blanks.
QString wrapped(const QString& text, int indent)
{
    QString result;
    int column = indent;
    for (const QString& word : text.split(QLatin1Char(' '))) {
        if (column > indent && column + 1 + word.size() > kWidth) {
            result += QLatin1Char('\n') + QString(indent, QLatin1Char(' '));
            column = indent;
        } else if (column > indent) {
            result += QLatin1Char(' ');
            ++column;
        }
        result += word;
        column += word.size();
    }
    return result;
}

QString row(const QString& name, const QString& text)
{
    QString line = QString(kIndent, QLatin1Char(' ')) + name;
    if (line.size() >= kNameWidth)
        line += QLatin1Char('\n') + QString(kNameWidth, QLatin1Char(' '));
    return line.leftJustified(kNameWidth) + wrapped(text, kNameWidth) + QLatin1Char('\n');
}

QString spelled(const OptionSpec& option)
{
    QString text = QStringLiteral("--") + QLatin1String(option.name);
    if (option.letter != '\0')
        text = QStringLiteral("-%1, ").arg(QLatin1Char(option.letter)) + text;
    if (option.takes == OptionSpec::Takes::Nothing)
        return text;
    return text + QLatin1Char(' ') + QString::fromUtf8(option.valueName);
}

QString paragraphs(const char* text)
{
    QString result;
    for (const QString& paragraph : QString::fromUtf8(text).split(QLatin1Char('\n')))
        result += wrapped(paragraph, 0) + QLatin1Char('\n');
    return result;
}

QString indented(const char* lines)
{
    QString result;
    for (const QString& line : QString::fromUtf8(lines).split(QLatin1Char('\n')))
        result += QString(kIndent, QLatin1Char(' ')) + line + QLatin1Char('\n');
    return result;
}

/// @p text as roff takes it anywhere in a line.
QString escaped(const QString& text)
{
    QString result = text;
    result.replace(QLatin1Char('\\'), QStringLiteral("\\e"));
    result.replace(QLatin1Char('-'), QStringLiteral("\\-"));
    result.replace(QLatin1Char('\''), QStringLiteral("\\(aq"));
    result.replace(QStringLiteral("…"), QStringLiteral("\\&..."));
    return result;
}

QString escaped(const char* text)
{
    return escaped(QString::fromUtf8(text));
}

/// Lines that stay as they are.
QString exampleInRoff(const char* lines)
{
    return QStringLiteral(".PP\n.nf\n") + escaped(lines) + QStringLiteral("\n.fi\n");
}

QString optionInRoff(const OptionSpec& option)
{
    return QStringLiteral(".TP\n.B %1\n%2\n").arg(escaped(spelled(option)), escaped(option.help));
}

QString commandInRoff(const Command& command)
{
    const QString details = escaped(command.details);
    QString text =
        QStringLiteral(".SS %1\n.B rulesctl %1\n%2\n.PP\n%3\n")
            .arg(escaped(command.name), escaped(command.usage),
                 QString(details).replace(QStringLiteral("\n\n"), QStringLiteral("\n.PP\n")));
    for (const OptionSpec& option : command.options)
        text += optionInRoff(option);
    return text + exampleInRoff(command.examples);
}

constexpr char kPurpose[] = "Checks, compares and rewrites configurations of video analytics "
                            "rules as the rules window would, without a window.";
constexpr char kStatuses[] =
    "0 as asked, clean, same; 1 fails, findings, differs; 2 arguments or a document cannot be "
    "used, or output was not written. With many files the worst of them.";

} // namespace

QString HelpText::manual()
{
    QString text = QStringLiteral(".TH RULESCTL 1\n.SH NAME\nrulesctl \\- check, compare and "
                                  "rewrite configurations of video analytics rules\n"
                                  ".SH SYNOPSIS\n.B rulesctl\n.I COMMAND\n.B \\-\\-template\n.I "
                                  "F\n[\n.I OPTION\n\\&... ]\n.SH DESCRIPTION\n") +
                   escaped(kPurpose) + QStringLiteral("\n.SH COMMANDS\n");
    for (const Command* command : Commands::all())
        text += commandInRoff(*command);
    text += QStringLiteral(".SH OPTIONS OF ALL COMMANDS\n");
    for (const OptionSpec& option : Commands::commonOptions())
        text += optionInRoff(option);
    return text + QStringLiteral(".SH EXIT STATUS\n") + escaped(kStatuses) +
           QStringLiteral("\n.SH SEE ALSO\n.BR rules\\-workbench (1)\n");
}

QString HelpText::ofProgram()
{
    QString text = QStringLiteral("Usage: rulesctl COMMAND --template F [OPTION...]\n\n") +
                   paragraphs(kPurpose) + QStringLiteral("\nCommands:\n");
    for (const Command* command : Commands::all())
        text += row(QString::fromLatin1(command->name), QString::fromUtf8(command->summary));
    return text +
           QStringLiteral(
               "\nrulesctl COMMAND --help tells of one; rulesctl --version which this is, "
               "rulesctl --man writes\nthe manual page.\n\n") +
           wrapped(QStringLiteral("Exit status: ") + QString::fromUtf8(kStatuses), 0) +
           QLatin1Char('\n') + QStringLiteral("\nExample:\n") +
           indented(Commands::all().front()->examples);
}

QString HelpText::of(const Command& command)
{
    QString text = QStringLiteral("Usage: rulesctl %1 %2\n\n")
                       .arg(QString::fromLatin1(command.name), QString::fromUtf8(command.usage)) +
                   paragraphs(command.details) + QStringLiteral("\nOptions:\n");
    for (const OptionSpec& option : Commands::optionsOf(command))
        text += row(spelled(option), QString::fromUtf8(option.help));
    return text + QStringLiteral("\nExamples:\n") + indented(command.examples);
}

QString HelpText::version()
{
    return QStringLiteral("rulesctl " RULES_VERSION "\n");
}
