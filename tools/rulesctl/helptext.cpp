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

} // namespace

QString HelpText::ofProgram()
{
    QString text = QStringLiteral("Usage: rulesctl COMMAND --template F [OPTION...]\n\n") +
                   paragraphs("Checks, compares and rewrites configurations of video analytics "
                              "rules as the rules window would, without a window.") +
                   QStringLiteral("\nCommands:\n");
    for (const Command* command : Commands::all())
        text += row(QString::fromLatin1(command->name), QString::fromUtf8(command->summary));
    return text +
           QStringLiteral("\nrulesctl COMMAND --help tells of one; rulesctl --version which this "
                          "is.\n\n") +
           paragraphs("Exit status: 0 as asked, clean, same; 1 fails, findings, differs; 2 "
                      "arguments or a document cannot be used, or output was not written. With "
                      "many files the worst of them.") +
           QStringLiteral("\nExample:\n") + indented(Commands::all().front()->examples);
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
