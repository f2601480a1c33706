#include "scene/statisticsdirection.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/spelling.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "tabel/controlfactory.h"
#include "tabel/controlitemwidgettabel.h"
#include "tabel/controltabel.h"

namespace
{

const auto kLeftToRight = QStringLiteral("LeftToRight");
const auto kRightToLeft = QStringLiteral("RightToLeft");

QList<DrawItem*> parallelograms(const RuleData& data, const RuleDataInfo& entry)
{
    return data.getDrawScene()->getItemList(BaseDrawType::Parallelogram, entry.id());
}

} // namespace

StatisticsDirection::StatisticsDirection() = default;
StatisticsDirection::~StatisticsDirection() = default;

QString StatisticsDirection::key()
{
    return QStringLiteral("ruleStatisticsRegionDirection");
}

std::unique_ptr<RuleProtocolItem> StatisticsDirection::makeItem()
{
    auto item = std::make_unique<RuleProtocolItem>();
    item->setKey(key());
    item->setValueType(ValueType::String);
    item->setFacade(FacadeType::RadioButton);
    item->setCaption(tr("Detection direction"));
    item->setEnumeration({{QStringLiteral("enumLeftToRight"), kLeftToRight, tr("Left to right")},
                          {QStringLiteral("enumRightToLeft"), kRightToLeft, tr("Right to left")}});
    item->setDefaultValue(kLeftToRight);
    return item;
}

void StatisticsDirection::bind(const RuleData& data, ControlItemWidgetTabel& rows)
{
    if (!data.getTemplate()->findItem(QStringLiteral("ruleStatisticsRegion")))
        return;
    m_item = makeItem();
    m_row = createControlTabel(m_item.get(), &rows);
    rows.addControl(m_row, false);
}

void StatisticsDirection::release()
{
    m_row = nullptr;
    m_item.reset();
}

void StatisticsDirection::load(const RuleData& data, const RuleDataInfo& entry)
{
    if (!m_row)
        return;
    const DrawItem* figure = parallelograms(data, entry).value(0);
    show(figure ? figure->figure()->direction() : BaseDrawDirectionType::LeftToRight);
}

QVariant StatisticsDirection::chosen() const
{
    return m_row ? m_row->value() : QVariant();
}

void StatisticsDirection::choose(const RuleData& data, const RuleDataInfo& entry,
                                 const QVariant& direction)
{
    if (m_row && parallelograms(data, entry).isEmpty())
        m_row->loadValue(direction);
}

void StatisticsDirection::giveTo(DrawItem& figure)
{
    if (!m_row || figure.drawType() != BaseDrawType::Parallelogram)
        return;
    const BaseDrawDirectionType direction = shown();
    figure.setDirection(direction);
    show(direction);
}

void StatisticsDirection::apply(const RuleData& data, const RuleDataInfo& entry) const
{
    if (!m_row)
        return;
    const QList<DrawItem*> figures = parallelograms(data, entry);
    for (DrawItem* figure : figures)
        figure->setDirection(shown());
}

BaseDrawDirectionType StatisticsDirection::shown() const
{
    const auto direction = Spelling::toDirectionType(m_row->value().toString());
    return direction == BaseDrawDirectionType::None ? BaseDrawDirectionType::LeftToRight
                                                    : direction;
}

void StatisticsDirection::show(BaseDrawDirectionType direction)
{
    const bool isRightToLeft = direction == BaseDrawDirectionType::RightToLeft;
    m_row->loadValue(isRightToLeft ? kRightToLeft : kLeftToRight);
}
