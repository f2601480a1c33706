#include "Protocol/datatemplate.h"

#include "Protocol/ruleprotocolitem.h"
#include "draw/drawitem.h"

#include <QHash>

#include <algorithm>

DataTemplate::DataTemplate() = default;
DataTemplate::~DataTemplate() = default;

DataTemplate::DataTemplate(const DataTemplate& other)
    : m_name(other.m_name),
      m_parent(other.m_parent),
      m_title(other.m_title),
      m_countRange(other.m_countRange),
      m_checkRules(other.m_checkRules)
{
    QHash<const RuleProtocolItem*, const RuleProtocolItem*> copies;
    for (const auto& item : other.m_items) {
        auto copy = std::make_unique<RuleProtocolItem>(*item);
        copy->setRow(nullptr);
        copies.insert(item.get(), copy.get());
        m_items.push_back(std::move(copy));
    }
    for (const auto& item : m_items)
        item->setLinkedItem(copies.value(item->linkedItem()));
}

std::unique_ptr<DataTemplate> DataTemplate::clone() const
{
    return std::unique_ptr<DataTemplate>(new DataTemplate(*this));
}

void DataTemplate::setItems(Items items)
{
    m_items = std::move(items);
    m_itemsByKey.clear();
}

RuleProtocolItem* DataTemplate::addItem(std::unique_ptr<RuleProtocolItem> item)
{
    m_items.push_back(std::move(item));
    m_itemsByKey.clear();
    return m_items.back().get();
}

RuleProtocolItem* DataTemplate::addBuiltIn(const QString& key, const QString& path,
                                           FacadeType facade, const QString& caption)
{
    auto made = std::make_unique<RuleProtocolItem>();
    made->setKey(key);
    RuleProtocolItem* const item = addItem(std::move(made));
    item->setPath(path);
    item->setFacade(facade);
    item->setCaption(caption);
    item->setTemplateName(m_name);
    return item;
}

RuleProtocolItem* DataTemplate::findItem(const QString& key) const
{
    if (m_itemsByKey.isEmpty()) {
        for (auto item = m_items.rbegin(); item != m_items.rend(); ++item)
            m_itemsByKey.insert((*item)->key(), item->get());
    }
    return m_itemsByKey.value(key);
}

QList<RuleProtocolItem*> DataTemplate::figureItems() const
{
    QList<RuleProtocolItem*> figures;
    for (const auto& item : m_items) {
        if (item->isFigure())
            figures.append(item.get());
    }
    return figures;
}

RuleProtocolItem* DataTemplate::figureItem(BaseDrawType type) const
{
    const auto found = std::find_if(m_items.begin(), m_items.end(), [type](const auto& item) {
        return item->isFigure() && item->drawType() == type;
    });
    return found == m_items.end() ? nullptr : found->get();
}

DrawItemForbidenAreaType DataTemplate::forbiddenArea(const RuleProtocolItem& item) const
{
    return item.linkedItem() ? DrawItemForbidenAreaType::ForbidenOutsideParent
                             : DrawItemForbidenAreaType::ForbidenNone;
}

DrawItemForbidenAreaType DataTemplate::forbiddenAreaOf(const DrawItem& figure) const
{
    if (figure.parent())
        return DrawItemForbidenAreaType::ForbidenOutsideParent;
    const auto found =
        std::find_if(m_items.begin(), m_items.end(), [&figure, this](const auto& item) {
            return item->isFigure() && isFigureFor(figure, *item);
        });
    return found == m_items.end() ? figure.forbidenAreaType() : forbiddenArea(**found);
}

bool DataTemplate::isFigureFor(const DrawItem& figure, const RuleProtocolItem& item) const
{
    if (figure.templateKey().isEmpty())
        return figureItem(figure.drawType()) == &item;
    return figure.templateKey() == item.key() && figure.drawType() == item.drawType();
}
