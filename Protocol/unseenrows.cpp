#include "Protocol/unseenrows.h"

#include "Protocol/controlrow.h"
#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/validity.h"

#include <QObject>

/// Of one pair.
class UnseenRows::Row : public QObject, public ControlRow
{
public:
    Row(const UnseenRows& rows, RuleProtocolItem& item) : m_rows(rows), m_item(item)
    {
        item.setRow(this);
    }

    QVariant value() const override { return shownPair(m_rows.valueOf(m_item)); }
    bool isRowVisible() const override { return m_rows.applies(m_item); }
    const QObject* rowObject() const override { return this; }

private:
    const UnseenRows& m_rows;
    const RuleProtocolItem& m_item;
};

UnseenRows::UnseenRows(const RuleData& data) : m_data(data)
{
    for (const auto& item : data.getTemplate()->items()) {
        const bool isPair = item->valueType() == ValueType::ArrayInt &&
                            item->facade() == FacadeType::NumericalInterval;
        if (isPair && isShown(data, *item))
            m_rows.push_back(std::make_unique<Row>(*this, *item));
    }
}

UnseenRows::~UnseenRows() = default;

void UnseenRows::load(const RuleDataInfo* entry)
{
    m_entry = entry;
    m_hidden.reset();
}

QVariant UnseenRows::valueOf(const RuleProtocolItem& item) const
{
    return m_entry ? m_entry->value(item.key()) : QVariant();
}

bool UnseenRows::applies(const RuleProtocolItem& item) const
{
    if (m_entry && !m_hidden)
        m_hidden = Validity::hiddenItems(*m_data.getTemplate(), *m_entry);
    return !m_hidden || !m_hidden->contains(&item);
}

QSize UnseenRows::shownPair(const QVariant& value)
{
    return value.userType() == QMetaType::QSize ? value.toSize() : QSize(-1, -1);
}

bool UnseenRows::isShown(const RuleData& data, const RuleProtocolItem& item)
{
    return item.isControl() && (data.getSceneType() != SceneType::Global || item.isEnabled());
}
