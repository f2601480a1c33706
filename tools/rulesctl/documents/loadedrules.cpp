#include "tools/rulesctl/documents/loadedrules.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entryname.h"
#include "Protocol/figurelabels.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleparser.h"
#include "Protocol/sceneopening.h"
#include "Protocol/sceneprotocol.h"
#include "Protocol/sceneprotocols.h"
#include "Protocol/unseenrows.h"
#include "tools/rulesctl/documents/templatedocument.h"

using kql::Json::Value;

LoadedRules::LoadedRules(const TemplateDocument& rulesTemplate)
    : m_template(rulesTemplate.document), m_parser(std::make_unique<RuleParser>())
{
    m_parser->setAlgorithmInfo(rulesTemplate.algorithm.number, rulesTemplate.algorithm.code);
    readTemplate();
}

LoadedRules::~LoadedRules() = default;

void LoadedRules::readTemplate()
{
    m_rows.clear();
    QString why;
    m_parser->parseTemplate(Value(m_template), why);
    for (const auto& scene : m_parser->getAllData())
        m_rows.push_back(std::make_unique<UnseenRows>(*scene));
}

bool LoadedRules::read(Value config, QString& why)
{
    m_parser->forgetData();
    if (m_parser->readData(std::move(config), why))
        return true;
    readTemplate();
    return false;
}

bool LoadedRules::load(Value config, QString& why)
{
    if (!read(std::move(config), why))
        return false;
    open();
    return true;
}

void LoadedRules::open()
{
    auto rows = m_rows.begin();
    for (const auto& scene : m_parser->getAllData()) {
        SceneOpening::complete(*scene);
        SceneOpening::turnLines(*scene);
        (*rows++)->load(scene->getDataInfo(SceneOpening::showFirst(*scene)));
    }
}

void LoadedRules::nameEntries()
{
    for (const auto& scene : m_parser->getAllData())
        EntryName::nameAll(*scene);
}

void LoadedRules::labelFigures()
{
    for (const auto& scene : m_parser->getAllData()) {
        const SceneProtocol& protocol = sceneProtocol(scene->getSceneType());
        FigureLabels::update(*scene, protocol.entryFigureItem(*scene->getTemplate()));
    }
}
