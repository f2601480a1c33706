#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleparser.h"
#include "host/api/wholefile.h"
#include "tools/rulesctl/command.h"
#include "tools/rulesctl/documents/configdocument.h"
#include "tools/rulesctl/documents/filelist.h"
#include "tools/rulesctl/documents/loadedrules.h"
#include "tools/rulesctl/documents/outputplace.h"
#include "tools/rulesctl/documents/templatedocument.h"
#include "tools/rulesctl/output.h"
#include "tools/rulesctl/render/rulepicture.h"
#include "tools/rulesctl/runoptions.h"

#include <QBuffer>
#include <QFileInfo>

#include <algorithm>

using UICommonMdl::WholeFile::write;

namespace
{

bool isSvg(const QString& file)
{
    return QFileInfo(file).suffix() == QLatin1String("svg");
}

ExitStatus refuse(const QString& why)
{
    Complaint::say(why);
    return ExitStatus::Unusable;
}

std::optional<Ground> groundOf(const Arguments& arguments, QString& why)
{
    if (arguments.isSet("size"))
        return Ground::ofSize(arguments.word("size"));
    return arguments.isSet("picture") ? Ground::ofFile(arguments.word("picture"), why) : Ground();
}

bool hasScene(const RuleParser& scenes, const QString& name)
{
    const auto& all = scenes.getAllData();
    return name.isEmpty() || std::any_of(all.begin(), all.end(), [&name](const auto& data) {
               return data->getTemplate()->name() == name;
           });
}

QByteArray encoded(const RulePicture& picture, const QString& file)
{
    if (isSvg(file))
        return picture.toSvg();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return picture.toImage().save(&buffer, "PNG") ? bytes : QByteArray();
}

ExitStatus render(LoadedRules& rules, const Ground& ground, const Arguments& arguments)
{
    const QString scene = arguments.word("scene");
    if (!hasScene(rules.parser(), scene))
        return refuse(QStringLiteral("rulesctl: the template has no section \"%1\"").arg(scene));
    rules.labelFigures();
    const QString file = arguments.word("output");
    QString why;
    if (!write(file, encoded(RulePicture(rules.parser(), scene, ground), file), why))
        return refuse(why);
    return ExitStatus::Clean;
}

ExitStatus run(const Arguments& arguments, Output&)
{
    DocumentError error;
    const auto rulesTemplate = TemplateDocument::read(arguments, error);
    if (!rulesTemplate)
        return refuse(error.text());
    const QString file = arguments.word("config");
    const QString clash = OutputPlace::replaced(
        arguments.word("output"), {rulesTemplate->file, file, arguments.word("picture")});
    if (!clash.isEmpty())
        return refuse(QStringLiteral("rulesctl: ") + clash);
    error = {file, 0, 0, {}};
    auto document = ConfigDocument::read(file, error);
    LoadedRules rules(*rulesTemplate);
    if (!document || !rules.load(document->takeConfig(), error.reason))
        return refuse(error.text());
    DocumentError pictureError{arguments.word("picture"), 0, 0, {}};
    const auto ground = groundOf(arguments, pictureError.reason);
    return ground ? render(rules, *ground, arguments) : refuse(pictureError.text());
}

QString fault(const Arguments& arguments)
{
    const QString file = arguments.word("output");
    if (arguments.words("config").size() != 1)
        return QStringLiteral("one configuration is rendered, by --config");
    if (arguments.isSet("picture") && arguments.isSet("size"))
        return QStringLiteral("--size does not go beside --picture, which has its own");
    if (arguments.isSet("size") && !Ground::ofSize(arguments.word("size")))
        return QStringLiteral("--size takes WxH, of %1 to %2 pixels each")
            .arg(Ground::kLeastSide)
            .arg(Ground::kMostSide);
    return isSvg(file) || QFileInfo(file).suffix() == QLatin1String("png")
               ? QString()
               : QStringLiteral("-o takes a file that ends in .png or .svg");
}

} // namespace

const Command& Commands::render()
{
    using Takes = OptionSpec::Takes;
    static const Command command{
        "render",
        "paint the figures over a picture",
        "--template F [--algorithm N:CODE] --config F [--picture F | --size WxH] [--scene NAME] "
        "-o F.png|F.svg",
        "Paints the figures as the rules window does while no entry is selected: of all sections, "
        "or of one. Without a picture they are painted on black, 1920x1080 pixels without a size. "
        "In SVG coordinates are the picture's pixels.\n"
        "\n"
        "Exit status: 0 the file was written, 2 it was not.",
        "rulesctl render --template template.json --config gate.json -o gate.png\n"
        "rulesctl render --template template.json --config gate.json --picture gate.jpg -o "
        "gate.svg",
        {{"config", '\0', Takes::Word, "F", "a configuration, or a result that has one"},
         {"picture", '\0', Takes::Word, "F", "what lies beneath the figures"},
         {"size", '\0', Takes::Word, "WxH", "pixels of the black that lies beneath them otherwise"},
         {"scene", '\0', Takes::Word, "NAME", "the one section to be shown, by its key"},
         {"output", 'o', Takes::Word, "F", "what is written, by its ending PNG or SVG"}},
        0,
        &fault,
        &run,
        true};
    return command;
}
