#include "workbench/commandline.h"

#include "host/video/maskedaddress.h"
#include "workbench/theme.h"

#include <QCoreApplication>
#include <QLocale>

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)
};

constexpr char kTheme[] = "theme";

struct TextOption {
    const char* name;
    const char* description;
    QString WorkbenchOptions::*target;
    const char* valueName;
    bool isFile = true;
};

const TextOption kTextOptions[] = {
    {"template", QT_TRANSLATE_NOOP("CommandLine", "Template document to load."),
     &WorkbenchOptions::templateFile, "F"},
    {"config",
     QT_TRANSLATE_NOOP(
         "CommandLine",
         "Configuration document to load, or a result with one; none is an empty one."),
     &WorkbenchOptions::configFile, "F"},
    {"source",
     QT_TRANSLATE_NOOP(
         "CommandLine",
         "Address or file that gives the channel's picture, in place of the sample camera: an RTSP "
         "address, a video, a still picture."),
     &WorkbenchOptions::source, "ADDRESS-OR-FILE"},
    {"picture", QT_TRANSLATE_NOOP("CommandLine", "The same as --source."),
     &WorkbenchOptions::source, "F"},
    {"channel", QT_TRANSLATE_NOOP("CommandLine", "Channel id."), &WorkbenchOptions::channelId, "ID",
     false},
    {"name", QT_TRANSLATE_NOOP("CommandLine", "Channel name."), &WorkbenchOptions::channelName,
     "TEXT", false},
    {"algorithm", QT_TRANSLATE_NOOP("CommandLine", "Algorithm id."), &WorkbenchOptions::algorithmId,
     "ID", false},
    {"code", QT_TRANSLATE_NOOP("CommandLine", "Algorithm code."), &WorkbenchOptions::algorithmCode,
     "TEXT", false},
    {"plugin",
     QT_TRANSLATE_NOOP("CommandLine",
                       "Plug-in to load in place of the one that comes with the program."),
     &WorkbenchOptions::pluginFile, "FILE"},
    {"result",
     QT_TRANSLATE_NOOP(
         "CommandLine",
         "Write the object of the last result message here; leaving keeps what was saved."),
     &WorkbenchOptions::resultFile, "F"},
    {"screenshot",
     QT_TRANSLATE_NOOP("CommandLine", "Save a picture of the window here before it closes."),
     &WorkbenchOptions::screenshotFile, "F"},
    {"replay", QT_TRANSLATE_NOOP("CommandLine", "Do what this session says, then close."),
     &WorkbenchOptions::replayFile, "F"},
    {"record", QT_TRANSLATE_NOOP("CommandLine", "Write what the operator does to this session."),
     &WorkbenchOptions::recordFile, "F"},
    {kTheme,
     QT_TRANSLATE_NOOP("CommandLine",
                       "Colours of the windows, light or dark, in place of the desktop's."),
     &WorkbenchOptions::theme, "NAME", false},
};

constexpr char kType[] = "type";
constexpr char kLanguage[] = "language";
constexpr char kChannelSource[] = "channel-source";
constexpr char kEditable[] = "editable";
constexpr char kSelectionMode[] = "selection-mode";

} // namespace

CommandLine::CommandLine()
{
    m_parser.setApplicationDescription(Texts::tr(
        "Stand-alone host of the rules window.\n"
        "Exit status: 0 saved or closed, 1 left without saving what was changed since, "
        "2 unusable arguments or files, 3 a replayed session failed, or did not come to its end."));
    for (const TextOption& option : kTextOptions)
        m_parser.addOption({QString::fromLatin1(option.name), Texts::tr(option.description),
                            QString::fromLatin1(option.valueName)});
    m_parser.addOption({QString::fromLatin1(kChannelSource),
                        Texts::tr("Address or file that gives this channel's picture; may be "
                                  "repeated."),
                        QStringLiteral("ID=ADDRESS")});
    m_parser.addOption(
        {QString::fromLatin1(kType), Texts::tr("Algorithm type, a number."), QStringLiteral("N")});
    m_parser.addOption({QString::fromLatin1(kLanguage),
                        Texts::tr("Language of all texts, in place of the desktop's: de, zh_CN or "
                                  "en."),
                        QStringLiteral("NAME")});
    m_parser.addOption({QString::fromLatin1(kSelectionMode),
                        Texts::tr("Let the operator select rules, not edit them.")});
    m_parser.addOption({QString::fromLatin1(kEditable),
                        Texts::tr("Pass the member \"editable\". Its presence locks the window, "
                                  "whatever its value, unless selection mode is on."),
                        QStringLiteral("true|false")});
    m_parser.addHelpOption();
    m_parser.addVersionOption();
}

CommandLine::Outcome CommandLine::parse(const QStringList& arguments)
{
    if (!m_parser.parse(arguments)) {
        m_text = m_parser.errorText();
        return Outcome::Unusable;
    }
    m_wantsHelp = m_parser.isSet(QStringLiteral("help"));
    if (m_wantsHelp)
        return Outcome::ShowText;
    if (m_parser.isSet(QStringLiteral("version"))) {
        m_text = QCoreApplication::applicationName() + QLatin1Char(' ') +
                 QCoreApplication::applicationVersion() + QLatin1Char('\n');
        return Outcome::ShowText;
    }
    if (!m_parser.positionalArguments().isEmpty()) {
        m_text = Texts::tr("Unexpected argument: %1").arg(m_parser.positionalArguments().first());
        return Outcome::Unusable;
    }
    return readOptions() ? Outcome::Run : Outcome::Unusable;
}

bool CommandLine::readOptions()
{
    for (const TextOption& option : kTextOptions) {
        const QString name = QString::fromLatin1(option.name);
        if (!m_parser.isSet(name))
            continue;
        m_options.*option.target = m_parser.value(name);
        // A script's variable that is not set would be no file, and so none that is missed.
        if (option.isFile && m_parser.values(name).contains(QString())) {
            m_text = Texts::tr("--%1 takes the name of a file").arg(name);
            return false;
        }
    }
    m_options.selectionMode = m_parser.isSet(QString::fromLatin1(kSelectionMode));
    return readChannelSources() && knowsTheme() && readLanguage() &&
           readNumber(QString::fromLatin1(kType), m_options.algorithmType) &&
           readSwitch(QString::fromLatin1(kEditable), m_options.editable) && keepsFiles();
}

QString CommandLine::language() const
{
    return m_parser.value(QString::fromLatin1(kLanguage));
}

QString CommandLine::text() const
{
    return m_wantsHelp ? m_parser.helpText() : UICommonMdl::maskedAddress(m_text);
}

bool CommandLine::readChannelSources()
{
    for (const QString& value : m_parser.values(QString::fromLatin1(kChannelSource))) {
        const int separator = value.indexOf(QLatin1Char('='));
        const QString channel = value.left(separator);
        const QString address = value.mid(separator + 1);
        // An address alone may have an equals sign as well.
        if (separator < 1 || address.isEmpty() || channel.contains(QStringLiteral("://")) ||
            UICommonMdl::maskedAddress(channel) != channel) {
            m_text = Texts::tr("--%1 takes ID=ADDRESS, not \"%2\"")
                         .arg(QString::fromLatin1(kChannelSource), value);
            return false;
        }
        m_options.channelSources.insert(channel, address);
    }
    return true;
}

bool CommandLine::knowsTheme()
{
    const QString& theme = m_options.theme;
    const bool isKnown = Theme::names().contains(theme);
    if (!isKnown && m_parser.isSet(QString::fromLatin1(kTheme)))
        m_text = Texts::tr("--%1 takes light or dark, not \"%2\"")
                     .arg(QString::fromLatin1(kTheme), theme);
    return m_text.isEmpty();
}

bool CommandLine::readLanguage()
{
    m_options.language = language();
    const bool isKnown = !m_parser.isSet(QString::fromLatin1(kLanguage)) ||
                         QLocale(m_options.language).language() != QLocale::C;
    if (!isKnown)
        m_text = Texts::tr("--%1 takes a language as \"de\", not \"%2\"")
                     .arg(QString::fromLatin1(kLanguage), m_options.language);
    return isKnown;
}

bool CommandLine::keepsFiles()
{
    m_text = m_options.outputFault();
    return m_text.isEmpty();
}

bool CommandLine::readNumber(const QString& name, int& target)
{
    if (!m_parser.isSet(name))
        return true;
    bool isNumber = false;
    target = m_parser.value(name).toInt(&isNumber);
    if (!isNumber)
        m_text = Texts::tr("--%1 takes a number, not \"%2\"").arg(name, m_parser.value(name));
    return isNumber;
}

bool CommandLine::readSwitch(const QString& name, std::optional<bool>& target)
{
    if (!m_parser.isSet(name))
        return true;
    const QString value = m_parser.value(name);
    if (value != QLatin1String("true") && value != QLatin1String("false")) {
        m_text = Texts::tr("--%1 takes true or false, not \"%2\"").arg(name, value);
        return false;
    }
    target = value == QLatin1String("true");
    return true;
}
