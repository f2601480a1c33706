#include "Protocol/ruledata.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entryid.h"
#include "Protocol/rulecheck.h"
#include "Protocol/ruledatainfo.h"
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
    m_saveNotices = other.m_saveNotices;
    m_namesKeptAside = other.m_namesKeptAside;
    setTemplate(other.m_template ? other.m_template->clone() : nullptr);
    m_entries.clear();
    for (const auto& entry : other.m_entries)
        m_entries.push_back(std::make_unique<RuleDataInfo>(*entry));
    m_drawScene->copyItemsFrom(*other.m_drawScene);
    setSelectedDataId(other.m_selectedDataId);
}

void RuleData::collectNotices(QStringList&) const {}

bool RuleData::checkData(QString& message) const
{
    if (!m_template || !m_drawScene)
        return false;
    const std::optional<CheckFault> fault = firstFault();
    if (fault)
        message = fault->message;
    return !fault;
}

std::optional<CheckFault> RuleData::firstFault() const
{
    if (!m_template || !m_drawScene)
        return std::nullopt;
    return RuleCheck::firstFailure(*m_template, *m_drawScene, m_entries, m_ruleFucTitle);
}

std::optional<CheckFault> RuleData::leftOf(const CheckFault& fault) const
{
    const RuleDataInfo* const entry = getDataInfo(fault.dataId);
    if (!entry || !m_template || !m_drawScene)
        return std::nullopt;
    return RuleCheck::failureOf(fault, *m_template, *m_drawScene, *entry);
}

void RuleData::setTemplate(std::unique_ptr<DataTemplate> dataTemplate)
{
    m_template = std::move(dataTemplate);
    m_defaults.reset();
}

const RuleDataInfo& RuleData::defaults() const
{
    if (m_defaults)
        return *m_defaults;
    m_defaults = std::make_unique<RuleDataInfo>();
    for (const auto& item : m_template->items()) {
        if (!item->isFigure())
            m_defaults->setValue(item->key(), item->defaultValue());
    }
    Validity::update(*m_template, *m_defaults);
    return *m_defaults;
}

std::unique_ptr<RuleDataInfo> RuleData::newDataInfo() const
{
    if (!m_template)
        return nullptr;
    auto entry = std::make_unique<RuleDataInfo>(defaults());
    entry->setId(EntryId::next());
    return entry;
}

RuleDataInfo* RuleData::addDataInfo(std::unique_ptr<RuleDataInfo> entry)
{
    if (!entry)
        return nullptr;
    m_entries.push_back(std::move(entry));
    return m_entries.back().get();
}

int RuleData::indexOf(int id) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [id](const auto& entry) { return entry->id() == id; });
    return found == m_entries.end() ? -1 : static_cast<int>(found - m_entries.begin());
}

RuleDataInfo* RuleData::getDataInfo(int id) const
{
    const int position = indexOf(id);
    return position < 0 ? nullptr : m_entries[static_cast<std::size_t>(position)].get();
}

void RuleData::setEntries(Entries entries)
{
    m_entries = std::move(entries);
}

void RuleData::forgetEntries()
{
    m_drawScene->clear();
    m_entries.clear();
    m_saveNotices = {};
    m_namesKeptAside.clear();
    m_textLeft = std::numeric_limits<qint64>::max();
    setSelectedDataId(0);
}

void RuleData::removeDataInfo(int id)
{
    const int position = indexOf(id);
    if (position >= 0)
        m_entries.erase(m_entries.begin() + position);
    else if (m_selectedDataId == id)
        m_selectedDataId = 0;
}

void RuleData::setSelectedDataId(int id)
{
    m_selectedDataId = id;
    if (m_drawScene)
        m_drawScene->setCurrentDataId(id);
}

EntryFigures::Figures RuleData::figuresOf(int dataId, const RuleProtocolItem& item) const
{
    // For the canvas an id below 1 stands for all entries.
    if (!m_template || dataId < 1 || !item.isFigure())
        return {};
    return figures().of(dataId, item);
}
