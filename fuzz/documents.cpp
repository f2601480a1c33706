#include "fuzz/fault.h"
#include "fuzz/harnesses.h"
#include "fuzz/inputbytes.h"
#include "fuzz/roundtrip.h"
#include "fuzz/scenetext.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "host/json/reader.h"
#include "host/json/value.h"

#include <QDir>
#include <memory>

using Fuzz::require;
using kql::Json::Value;

namespace
{

/// The templates of the examples, in the order of their names.
QStringList exampleTemplates()
{
    const QDir examples(QStringLiteral(RULES_EXAMPLES_DIR));
    QStringList texts;
    for (const QString& name : examples.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        QFile file(examples.filePath(name + QStringLiteral("/template.json")));
        if (file.open(QIODevice::ReadOnly))
            texts.append(QString::fromUtf8(file.readAll()));
    }
    return texts;
}

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

QString templateText(std::string_view part)
{
    static const QStringList examples = exampleTemplates();
    if (part.size() != 2 || part.front() != '@')
        return text(part);
    return examples.value((part.back() - '0') % qMax(examples.size(), 1));
}

/// Every figure belongs to an entry, and every entry is found by its id.
void requireOrder(const RuleData& scene)
{
    for (const auto& entry : scene.getAllData())
        require(scene.getDataInfo(entry->id()) == entry.get(), "an entry is not found by its id");
    for (const DrawItem* figure : scene.getDrawScene()->getItemList(BaseDrawType::None, 0))
        require(scene.getDataInfo(figure->dataId()), "a figure belongs to no entry");
    QString message;
    require(scene.checkData(message) == message.isEmpty(), "a check fails without saying why");
}

void requireCopies(const RuleData& scene)
{
    RuleData copy;
    copy = scene;
    require(SceneText::of(copy) == SceneText::of(scene), "a copied scene is another one");
}

/// A new entry can be added and taken away again, leaving the scene as it was.
void requireChanges(RuleData& scene)
{
    const std::string before = SceneText::of(scene);
    const RuleDataInfo* added = scene.addDataInfo(scene.newDataInfo());
    if (!added)
        return;
    const int id = added->id();
    require(scene.getDataInfo(id) == added, "a new entry is not found");
    scene.removeDataInfo(id);
    scene.removeDataInfo(id);
    require(SceneText::of(scene) == before, "an entry added and removed leaves something");
}

void requireScenes(const RuleParser& parser)
{
    for (const auto& scene : parser.getAllData()) {
        requireOrder(*scene);
        requireCopies(*scene);
        requireChanges(*scene);
    }
}

Value written(const RuleParser& parser)
{
    Value config;
    require(parser.writeData(config), "what could be written once cannot be written again");
    return config;
}

/// A parser of the same template that has read @p config.
std::unique_ptr<RuleParser> readAgain(const QString& templateText, const Value& config)
{
    auto parser = std::make_unique<RuleParser>();
    require(parser->parseTemplate(templateText), "a template is refused the second time");
    require(parser->readData(config.toStyledText()), "what was written cannot be read");
    requireScenes(*parser);
    return parser;
}

std::string passes(int pass, const Value& now, const Value& before)
{
    return "pass " + std::to_string(pass) + " writes\n" + now.toStyledString() + "\nin place of\n" +
           before.toStyledString();
}

Value skeletonOf(const QString& templateText)
{
    Value document;
    kql::Json::Reader().parse(templateText, document);
    return document["configTemplate"];
}

/// What @p parser has read and writes is read, and written, again.
void requireRoundTrip(const RuleParser& parser, const QString& description, bool isDevices,
                      const Value& first)
{
    const auto again = readAgain(description, first);
    const Value skeleton = skeletonOf(description);
    if (RoundTrip::isOwed(parser, skeleton))
        RoundTrip::requireSame(parser, *again, skeleton);
    else if (!isDevices) // one scene may read what another one wrote
        return;
    const Value second = written(*again);
    require(second == first, passes(2, second, first));
    const auto then = readAgain(description, second);
    require(SceneText::of(*then) == SceneText::of(*again),
            "the third pass reads\n" + SceneText::of(*then) + "in place of\n" +
                SceneText::of(*again));
}

} // namespace

void Fuzz::documents(std::string_view input)
{
    const auto parts = split(input, kSeparator);
    const QString description = templateText(parts.front());
    RuleParser parser;
    const bool usable = parser.parseTemplate(description);
    require(usable || parser.getAllData().empty(), "a refused template left scenes");
    const std::string untouched = SceneText::of(parser);
    const bool read = parts.size() > 1 && parser.readData(text(parts[1]));
    parser.findLosses();
    const std::string scenes = SceneText::of(parser);
    require(read || scenes == untouched, "a refused configuration changed something");
    if (!usable)
        return;
    requireScenes(parser);
    Value first;
    if (!parser.writeData(first))
        return;
    require(written(parser) == first, "writing changes what is written next");
    require(SceneText::of(parser) == scenes, "writing changes the scenes");
    requireRoundTrip(parser, description, description != text(parts.front()), first);
}
