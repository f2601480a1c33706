#include "Protocol/ruleparser.h"

#include "Protocol/datatemplate.h"
#include "Protocol/documentloss.h"
#include "Protocol/entryclip.h"
#include "Protocol/entryid.h"
#include "Protocol/entrylimit.h"
#include "Protocol/misfit.h"
#include "Protocol/noticetext.h"
#include "Protocol/placecheck.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/savelength.h"
#include "Protocol/sceneprotocol.h"
#include "Protocol/sceneprotocols.h"
#include "Protocol/spelling.h"
#include "Protocol/templatereader.h"
#include "host/api/dprintlog.h"
#include "host/api/limits.h"
#include "host/json/reader.h"

#include <QCryptographicHash>

#include <algorithm>
#include <iterator>
#include <vector>

using kql::Json::Reader;
using kql::Json::Value;

namespace
{

constexpr int kLogLevel = 6;
const auto kList = QStringLiteral("[]"); ///< behind the name of a list in a path
// A scene that is written later wins where two share a place; types not named here come last.
constexpr SceneType kWritingOrder[] = {
    SceneType::Global, SceneType::CalibrateArea, SceneType::FightCalibrate,
    SceneType::Rules,  SceneType::Lanes,         SceneType::Detection,
};

bool isWrittenBefore(const RuleData* scene, const RuleData* other)
{
    const auto place = [](const RuleData& data) {
        return std::find(std::begin(kWritingOrder), std::end(kWritingOrder), data.getSceneType());
    };
    return place(*scene) < place(*other);
}

} // namespace

RuleParser::RuleParser() = default;
RuleParser::~RuleParser() = default;

int RuleParser::createId()
{
    return EntryId::next();
}

FacadeType RuleParser::parseToFacadeType(const QString& text)
{
    return Spelling::toFacadeType(text);
}

ValueType RuleParser::parseToValueType(const QString& text)
{
    return Spelling::toValueType(text);
}

BaseDrawDirectionType RuleParser::parseToDirectionType(const QString& text)
{
    return Spelling::toDirectionType(text);
}

CheckRuleOperatorType RuleParser::parseToOperatorType(const QString& text)
{
    return Spelling::toOperatorType(text);
}

void RuleParser::setAlgorithmInfo(int id, const QString& name)
{
    m_algorithmId = id;
    m_algorithmName = name;
}

bool RuleParser::parseTemplate(const QString& text, QString& why)
{
    Value document;
    const bool isJson = Reader().parse(text, document);
    const bool isBuilt = parseTemplate(std::move(document), why);
    if (!isJson)
        why = tr("The template is not valid JSON.");
    return isBuilt;
}

bool RuleParser::parseTemplate(const QString& text)
{
    QString why;
    return parseTemplate(text, why);
}

bool RuleParser::parseTemplate(Value document, QString& why)
{
    m_data.clear();
    m_textPerEntry.clear();
    m_hasAllPlaces.reset();
    m_templateText.reset();
    m_templateDocument = Value();
    m_configuration = Value();
    m_notices.clear();
    if (!document.isMember("configDescription")) {
        why = tr("The template has no \"configDescription\".");
        return false;
    }
    TemplateReader reader(document);
    auto scenes = reader.read();
    if (reader.isTooLarge()) {
        why = tr("The template has more than %1 attributes or %2 choices in one section.")
                  .arg(Limits::kAttributes)
                  .arg(Limits::kChoices);
        return false;
    }
    m_templateDocument = std::move(document);
    m_data = std::move(scenes);
    return true;
}

bool RuleParser::checkTemplate() const
{
    return true;
}

bool RuleParser::readData(const QString& text, QString& why)
{
    Value document;
    if (Reader().parse(text, document))
        return readData(std::move(document), why);
    why = tr("The configuration is not valid JSON.");
    return false;
}

bool RuleParser::readData(const QString& text)
{
    QString why;
    return readData(text, why);
}

bool RuleParser::readData(Value document, QString& why)
{
    m_overfullPlace.clear();
    const auto isRoomFor = [&](const auto& countOf) {
        qint64 textLeft = Limits::kSceneText;
        return std::all_of(m_data.begin(), m_data.end(), [&](const auto& scene) {
            return hasRoomFor(*scene, countOf(*scene), textLeft, why);
        });
    };
    if (!isRoomFor(
            [&](const RuleData& scene) { return EntryLimit::countEntries(scene, document); }))
        return false;
    for (const auto& scene : m_data) {
        scene->setTextLeft(Limits::kSceneText);
        sceneProtocol(scene->getSceneType()).read(*scene, document);
    }
    if (!isRoomFor(&EntryLimit::countInnerFigures) || !isReadWhole(why)) {
        m_data = TemplateReader(m_templateDocument).read();
        m_textPerEntry.clear();
        return false;
    }
    m_configuration = std::move(document);
    return true;
}

void RuleParser::forgetData()
{
    for (const auto& scene : m_data)
        scene->forgetEntries();
    m_configuration = Value();
    m_notices.clear();
}

/// A document without a skeleton is not saved at all, which Save says.
void RuleParser::findLosses()
{
    Value written;
    const Value* const skeleton = m_templateDocument.find("configTemplate");
    if (!skeleton)
        return;
    for (const auto& scene : m_data) {
        PlaceCheck::tell(*scene, *skeleton, m_configuration);
        Misfit::tell(*scene);
    }
    if (!m_configuration.empty() && !write(written))
        m_notices = DocumentLoss(m_data, m_configuration, written).tell();
    for (const QString& notice : notices())
        kql::DPrintLog::instance()->Log("IntelligentRulesUI", kLogLevel, "RuleParser::findLosses",
                                        "Protocol\\ruleparser", __LINE__, "%s", notice);
}

QStringList RuleParser::notices() const
{
    QStringList notices;
    for (const auto& scene : m_data)
        notices += NoticeText::of(*scene);
    return notices + m_notices;
}

bool RuleParser::hasRoomFor(const RuleData& scene, int count, qint64& textLeft, QString& why)
{
    const qint64 text = textPerEntry(scene);
    const qint64 most = std::min<qint64>(Limits::kEntries, textLeft / text);
    textLeft -= count * text;
    if (count <= most)
        return true;
    m_overfullPlace = scene.getTemplate()->parent();
    why = tr("The configuration has %1 entries under \"%2\"; at most %3 can be edited.")
              .arg(QString::number(count), m_overfullPlace, QString::number(most));
    return false;
}

qint64 RuleParser::textPerEntry(const RuleData& scene) const
{
    auto known = m_textPerEntry.find(&scene);
    if (known == m_textPerEntry.end())
        known = m_textPerEntry.insert(
            &scene, EntryLimit::textPerEntry(scene, m_templateDocument["configTemplate"]));
    return *known;
}

bool RuleParser::isReadWhole(QString& why)
{
    const auto cut = std::find_if(m_data.begin(), m_data.end(),
                                  [](const auto& scene) { return scene->isOverdrawn(); });
    if (cut == m_data.end())
        return true;
    m_overfullPlace = (*cut)->getTemplate()->parent();
    why = tr("The attributes read too much of what the configuration has under \"%1\".")
              .arg(m_overfullPlace);
    return false;
}

bool RuleParser::writeData(Value& config, QString& why) const
{
    const auto refusal = writeForMessage(config);
    if (refusal)
        why = refusal->why;
    return !refusal;
}

std::optional<RuleParser::WriteRefusal> RuleParser::writeRefusal() const
{
    if (hasAllPlaces() && isSurelyShort())
        return std::nullopt;
    Value written;
    return writeForMessage(written);
}

bool RuleParser::isSurelyShort() const
{
    if (!m_templateText)
        m_templateText = SaveLength::mostText(m_templateDocument);
    qint64 entries = qint64(m_data.size());
    for (const auto& scene : m_data)
        entries += scene->getDataCount();
    return SaveLength::isSurelyShort(entries, m_algorithmName.toUtf8().size(), *m_templateText,
                                     SaveLength::mostText(m_configuration));
}

QString RuleParser::tooLongText()
{
    return tr("The configuration is too long.");
}

/// Whether each section has a place of its own, outside of all others: whatever the entries are,
/// they can be written then.
bool RuleParser::hasAllPlaces() const
{
    if (m_hasAllPlaces)
        return *m_hasAllPlaces;
    Value places = m_templateDocument["configTemplate"];
    QStringList taken;
    const auto takes = [&](const QString& parent) {
        const QString path = parent.endsWith(kList) ? parent.chopped(kList.size()) : parent;
        const QString place = path + QLatin1Char('.');
        const bool isApart =
            std::none_of(taken.cbegin(), taken.cend(), [&place](const QString& other) {
                return place.startsWith(other) || other.startsWith(place);
            });
        taken.append(place);
        return isApart && !path.isEmpty() && !path.contains(kList) &&
               JsonPath(parent).create(places);
    };
    bool hasAll =
        m_templateDocument.isMember("configTemplate") && (places.isObject() || places.isNull());
    for (const auto& scene : m_data) {
        for (const TemplateSection& section : scene->getTemplate()->sections())
            hasAll = hasAll && takes(section.parent);
    }
    m_hasAllPlaces = hasAll;
    return hasAll;
}

std::optional<RuleParser::WriteRefusal> RuleParser::write(Value& config) const
{
    const Value& document = m_templateDocument;
    const Value* const skeleton = document.find("configTemplate");
    const WriteRefusal noSkeleton{{}, tr("The template has no \"configTemplate\" to write into.")};
    if (!skeleton)
        return noSkeleton;
    Value written = skeleton->isNull() ? Value(kql::Json::ValueType::Object) : *skeleton;
    const WriteContext context{m_configuration, m_algorithmId, m_algorithmName};
    std::vector<const RuleData*> scenes;
    for (const auto& scene : m_data)
        scenes.push_back(scene.get());
    std::stable_sort(scenes.begin(), scenes.end(), &isWrittenBefore);
    for (const RuleData* scene : scenes) {
        if (auto refusal = writeScene(*scene, context, written))
            return refusal;
    }
    if (!written.isObject())
        return noSkeleton;
    config = std::move(written);
    return std::nullopt;
}

std::optional<RuleParser::WriteRefusal> RuleParser::writeForMessage(Value& config) const
{
    Value written;
    if (auto refusal = write(written))
        return refusal;
    if (SaveLength::isTooLong(written))
        return WriteRefusal{{}, tooLongText()};
    config = std::move(written);
    return std::nullopt;
}

std::optional<RuleParser::WriteRefusal>
RuleParser::writeScene(const RuleData& scene, const WriteContext& context, Value& document)
{
    for (const TemplateSection& section : scene.getTemplate()->sections()) {
        if (sceneProtocol(scene.getSceneType()).write(scene, section, context, document))
            continue;
        return WriteRefusal{section.name,
                            tr("The template has no place \"%1\" for what is set under \"%2\".")
                                .arg(section.parent, section.name)};
    }
    return std::nullopt;
}

bool RuleParser::writeData(Value& config) const
{
    QString why;
    return writeData(config, why);
}

bool RuleParser::writeData(QString& text) const
{
    text.clear();
    Value config;
    if (!writeData(config))
        return false;
    text = config.toStyledText();
    return !text.isEmpty();
}

Value RuleParser::copyOf(const RuleData& data, const RuleDataInfo& entry) const
{
    const TemplateSection section = data.getTemplate()->sections().front();
    const JsonEntries sources =
        sceneProtocol(data.getSceneType()).sources(data, section, m_configuration);
    const auto position = static_cast<std::size_t>(data.indexOf(entry.id()));
    return EntryClip::of(data, entry, documentDigest(), sources[position]);
}

QString RuleParser::documentDigest() const
{
    const QByteArray text = m_configuration.toCompactText().toUtf8();
    return QString::fromLatin1(QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex());
}

RuleData* RuleParser::getData(SceneType type) const
{
    const auto found = std::find_if(m_data.begin(), m_data.end(), [type](const auto& data) {
        return data->getSceneType() == type;
    });
    return found == m_data.end() ? nullptr : found->get();
}
