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
    explicit Row(RuleProtocolItem& item) : m_item(item) { item.setRow(this); }

    QVariant value() const override { return m_pair; }
    bool isRowVisible() const override { return m_isVisible; }
    const QObject* rowObject() const override { return this; }

    const RuleProtocolItem& item() const { return m_item; }
    void show(QSize pair, bool isVisible)
    {
        m_pair = pair;
        m_isVisible = isVisible;
    }

private:
    RuleProtocolItem& m_item;
    QSize m_pair = shownPair({});
    bool m_isVisible = true;
};

UnseenRows::UnseenRows(const RuleData& data)
{
    for (const auto& item : data.getTemplate()->items()) {
        const bool isPair = item->valueType() == ValueType::ArrayInt &&
                            item->facade() == FacadeType::NumericalInterval;
        if (isPair && isShown(data, *item))
            m_rows.push_back(std::make_unique<Row>(*item));
    }
}

UnseenRows::~UnseenRows() = default;

void UnseenRows::load(const RuleData& data, const RuleDataInfo* entry)
{
    if (m_rows.empty())
        return;
    QSet<const RuleProtocolItem*> hidden;
    if (entry)
        hidden = Validity::hiddenItems(*data.getTemplate(), *entry);
    for (const auto& row : m_rows) {
        const QVariant value = entry ? entry->value(row->item().key()) : QVariant();
        row->show(shownPair(value), !hidden.contains(&row->item()));
    }
}

QSize UnseenRows::shownPair(const QVariant& value)
{
    return value.userType() == QMetaType::QSize ? value.toSize() : QSize(-1, -1);
}

bool UnseenRows::isShown(const RuleData& data, const RuleProtocolItem& item)
{
    return item.isControl() && (data.getSceneType() != SceneType::Global || item.isEnabled());
}
