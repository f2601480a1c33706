#include "Protocol/lanes/lanestemplate.h"

#include "Protocol/configmember.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruleprotocolitem.h"

#include <algorithm>

namespace
{

bool isRuleItem(const std::unique_ptr<RuleProtocolItem>& item)
{
    return item->templateName() == ConfigMember::kRuleSection;
}

void initLineType(RuleProtocolItem* item, const QList<EnumOption>& options)
{
    item->setValueType(ValueType::String);
    item->setEnumeration(options);
}

} // namespace

LanesTemplate::LanesTemplate()
{
    setName(QStringLiteral("lanes"));
    setTitle(tr("Lanes configuration"));
    RuleProtocolItem* const lane = addBuiltIn(kLane, QString(), FacadeType::Lane, tr("lanes"));
    lane->setCountRange({1, 1});
    lane->setPointCount({4, 4});
    addBuiltIn(kNumber, QStringLiteral("Number"), FacadeType::InputBoxNumber, tr("Lanes num"))
        ->setValueType(ValueType::Int);
    const QList<EnumOption> lineTypes = {
        {QStringLiteral("enumWhiteSolid"), QStringLiteral("WhiteSolid"), tr("White solid")},
        {QStringLiteral("enumWhiteDotted"), QStringLiteral("WhiteDotted"), tr("White dotted")},
        {QStringLiteral("enumYellow"), QStringLiteral("Yellow"), tr("Yellow")},
    };
    initLineType(addBuiltIn(kLeftLineType, QStringLiteral("LeftLineType"), FacadeType::RadioButton,
                            tr("left line")),
                 lineTypes);
    initLineType(addBuiltIn(kRightLineType, QStringLiteral("RightLineType"),
                            FacadeType::RadioButton, tr("right line")),
                 lineTypes);
}

LanesTemplate* LanesTemplate::of(const RuleData& data)
{
    return dynamic_cast<LanesTemplate*>(data.getTemplate());
}

std::unique_ptr<DataTemplate> LanesTemplate::clone() const
{
    return std::unique_ptr<DataTemplate>(new LanesTemplate(*this));
}

void LanesTemplate::addRuleItems(Items items)
{
    for (auto& item : items)
        addItem(std::move(item));
}

bool LanesTemplate::hasRuleItems() const
{
    return std::any_of(items().begin(), items().end(), isRuleItem);
}

std::vector<TemplateSection> LanesTemplate::sections() const
{
    auto sections = DataTemplate::sections();
    const auto rule = std::find_if(items().begin(), items().end(), isRuleItem);
    if (rule != items().end())
        sections.push_back({ConfigMember::kRuleSection, (*rule)->parent()});
    return sections;
}

/// Whatever else is drawn in this scene belongs to a lane.
DrawItemForbidenAreaType LanesTemplate::forbiddenArea(const RuleProtocolItem& item) const
{
    return item.drawType() == BaseDrawType::VehicleLane
               ? DrawItemForbidenAreaType::ForbidenSelf
               : DrawItemForbidenAreaType::ForbidenOutsideParent;
}
