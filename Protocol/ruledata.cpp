#include "Protocol/ruledata.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entryname.h"
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
    m_saveNotices = other.m_saveNotices;
    m_takesOneEntry = other.m_takesOneEntry;
    setTemplate(other.m_template ? other.m_template->clone() : nullptr);
    m_entries.clear();
    for (const auto& entry : other.m_entries)
        m_entries.push_back(std::make_unique<RuleDataInfo>(*entry));
    m_places.clear();
    m_drawScene->copyItemsFrom(*other.m_drawScene);
    setSelectedDataId(other.m_selectedDataId);
}

QStringList RuleData::notices() const
{
    QStringList notices = m_saveNotices.sentences(*this);
    if (m_takesOneEntry && getDataCount() > 1)
        notices.append(tr("Only %1 is saved: the template has room for one.")
                           .arg(EntryName::button(*this, 0)));
    collectNotices(notices);
    return notices;
}

void RuleData::collectNotices(QStringList&) const {}

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
    m_defaults->shareValues();
    return *m_defaults;
}

std::unique_ptr<RuleDataInfo> RuleData::newDataInfo() const
{
    if (!m_template)
        return nullptr;
    auto entry = std::make_unique<RuleDataInfo>(defaults());
    entry->setId(RuleParser::createId());
    return entry;
}

RuleDataInfo* RuleData::addDataInfo(std::unique_ptr<RuleDataInfo> entry)
{
    if (!entry)
        return nullptr;
    if (!m_places.empty() && m_places.back().id < entry->id())
        m_places.push_back({entry->id(), getDataCount()});
    else
        m_places.clear();
    if (!m_entries.empty())
        entry->shareFlags(*m_entries.back());
    m_entries.push_back(std::move(entry));
    return m_entries.back().get();
}

void RuleData::reserve(std::size_t count)
{
    m_entries.reserve(m_entries.size() + count);
}

int RuleData::indexOf(int id) const
{
    if (m_places.empty())
        findPlaces();
    const auto place =
        std::lower_bound(m_places.begin(), m_places.end(), id,
                         [](const Place& one, int wanted) { return one.id < wanted; });
    return place != m_places.end() && place->id == id ? place->position : -1;
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
        m_places.clear();
    } else if (m_selectedDataId == id) {
        m_selectedDataId = 0;
    }
}

void RuleData::findPlaces() const
{
    m_places.reserve(m_entries.size());
    for (const auto& entry : m_entries)
        m_places.push_back({entry->id(), static_cast<int>(m_places.size())});
    std::stable_sort(m_places.begin(), m_places.end(),
                     [](const Place& one, const Place& other) { return one.id < other.id; });
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
    QList<DrawItem*> figures;
    for (const auto& [id, figure] : m_drawScene->itemsOf(dataId)) {
        if (m_template->isFigureFor(*figure, item))
            figures.append(figure);
    }
    return figures;
}
