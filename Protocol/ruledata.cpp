#include "Protocol/ruledata.h"

#include "Protocol/datatemplate.h"
#include "Protocol/rulecheck.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/validity.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"

#include <algorithm>

RuleData::RuleData() : m_drawScene(std::make_unique<DrawScene>()), m_ruleFucTitle(tr("Rule")) {}

RuleData::~RuleData() = default;

RuleData::RuleData(const RuleData& other) : m_drawScene(std::make_unique<DrawScene>())
{
    copyFrom(other);
}

RuleData& RuleData::operator=(const RuleData& other)
{
    if (this != &other)
        copyFrom(other);
    return *this;
}

void RuleData::copyFrom(const RuleData& other)
{
    m_sceneType = other.m_sceneType;
    m_ruleFucTitle = other.m_ruleFucTitle;
    setTemplate(other.m_template ? other.m_template->clone() : nullptr);
    m_entries.clear();
    for (const auto& entry : other.m_entries)
        m_entries.push_back(std::make_unique<RuleDataInfo>(*entry));
    indexEntries();
    m_drawScene->copyItemsFrom(*other.m_drawScene);
    setSelectedDataId(other.m_selectedDataId);
}

bool RuleData::checkData(QString& message) const
{
    if (!m_template || !m_drawScene)
        return false;
    const std::optional<QString> failure = RuleCheck::firstFailure(*this);
    if (failure)
        message = *failure;
    return !failure;
}

void RuleData::setTemplate(std::unique_ptr<DataTemplate> dataTemplate)
{
    m_template = std::move(dataTemplate);
    m_prototype.reset();
}

const RuleDataInfo& RuleData::prototype() const
{
    if (!m_prototype) {
        m_prototype = std::make_unique<RuleDataInfo>();
        for (const auto& item : m_template->items()) {
            if (!item->isFigure())
                m_prototype->setValue(item->key(), item->defaultValue());
        }
        Validity::update(*m_template, *m_prototype);
    }
    return *m_prototype;
}

std::unique_ptr<RuleDataInfo> RuleData::newDataInfo() const
{
    if (!m_template)
        return nullptr;
    auto entry = std::make_unique<RuleDataInfo>(prototype());
    entry->setId(RuleParser::createId());
    fillNewEntry(*entry);
    return entry;
}

void RuleData::fillNewEntry(RuleDataInfo&) const {}

RuleDataInfo* RuleData::addDataInfo(std::unique_ptr<RuleDataInfo> entry)
{
    if (!entry)
        return nullptr;
    if (indexOf(entry->id()) < 0)
        m_positions.insert(entry->id(), getDataCount());
    m_entries.push_back(std::move(entry));
    return m_entries.back().get();
}

int RuleData::indexOf(int id) const
{
    return m_positions.value(id, -1);
}

RuleDataInfo* RuleData::getDataInfo(int id) const
{
    const int position = indexOf(id);
    return position < 0 ? nullptr : m_entries[static_cast<std::size_t>(position)].get();
}

void RuleData::removeDataInfo(int id)
{
    const int position = indexOf(id);
    if (position >= 0) {
        m_entries.erase(m_entries.begin() + position);
        indexEntries();
    } else if (m_selectedDataId == id) {
        m_selectedDataId = 0;
    }
}

void RuleData::indexEntries()
{
    m_positions.clear();
    m_positions.reserve(getDataCount());
    for (int position = getDataCount() - 1; position >= 0; --position)
        m_positions.insert(m_entries[static_cast<std::size_t>(position)]->id(), position);
}

void RuleData::setSelectedDataId(int id)
{
    m_selectedDataId = id;
    if (m_drawScene)
        m_drawScene->setCurrentDataId(id);
}

QList<DrawItem*> RuleData::figuresOf(int dataId, const RuleProtocolItem& item) const
{
    // For the canvas an id below 1 stands for all entries.
    if (!m_template || dataId < 1 || !item.isFigure())
        return {};
    QList<DrawItem*> figures = m_drawScene->getItemList(item.drawType(), dataId);
    const auto isOther = [&](const DrawItem* figure) {
        return !m_template->isFigureFor(*figure, item);
    };
    figures.erase(std::remove_if(figures.begin(), figures.end(), isOther), figures.end());
    return figures;
}
