#include "Protocol/calibration/calibrateareatemplate.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruleprotocolitem.h"

namespace
{

constexpr double kShortest = 0.01; // metres
constexpr double kLongest = 10000;
constexpr CountRange kStaffPoints{2, 2};
constexpr CountRange kAnyStaffs{0, 0};
constexpr CountRange kVerticalStaffs{3, 3};
constexpr CountRange kHorizontalStaffs{1, 1};
const auto kSceneMethod = QStringLiteral("Scene");
const auto kLaneMethod = QStringLiteral("Lane");
const auto kRegion = QStringLiteral("calibrateAreaRegion");
const auto kVerticalStaff = QStringLiteral("calibrateAreaVerticalLine");
const auto kHorizontalStaff = QStringLiteral("calibrateAreaHorizontalLine");
const auto kVerticalLength = QStringLiteral("calibrateAreaVertical");
const auto kHorizontalLength = QStringLiteral("calibrateAreaHorizontal");

void initStaff(RuleProtocolItem* staff, const RuleProtocolItem* region)
{
    staff->setEnabled(false);
    staff->setCountRange(kAnyStaffs);
    staff->setPointCount(kStaffPoints);
    staff->setLinkedItem(region);
}

void initLength(RuleProtocolItem* length, const QString& unit)
{
    length->setValueType(ValueType::Float);
    length->setUnits(unit);
    length->setRange(kShortest, kLongest);
}

void enableStaff(RuleProtocolItem* staff, CountRange count)
{
    staff->setEnabled(true);
    staff->setCountRange(count);
}

} // namespace

CalibrateAreaTemplate::CalibrateAreaTemplate()
{
    setName(QStringLiteral("calibrateArea"));
    RuleProtocolItem* const region =
        addBuiltIn(kRegion, QStringLiteral("Area[]"), FacadeType::Region, tr("region"));
    region->setCountRange({1, 1});
    const auto staffs = QStringLiteral("Staffs[]");
    initStaff(addBuiltIn(kVerticalStaff, staffs, FacadeType::VerticalStaff, tr("verticalLine")),
              region);
    initStaff(
        addBuiltIn(kHorizontalStaff, staffs, FacadeType::HorizontalStaff, tr("horizontalLine")),
        region);
    const auto lengths = QStringLiteral("Staffs[].Length");
    initLength(addBuiltIn(kVerticalLength, lengths, FacadeType::InputBoxNumber, tr("vertical")),
               tr("meter"));
    initLength(addBuiltIn(kHorizontalLength, lengths, FacadeType::InputBoxNumber, tr("horizontal")),
               tr("meter"));
}

CalibrateAreaTemplate* CalibrateAreaTemplate::of(const RuleData& data)
{
    return dynamic_cast<CalibrateAreaTemplate*>(data.getTemplate());
}

std::unique_ptr<DataTemplate> CalibrateAreaTemplate::clone() const
{
    return std::unique_ptr<DataTemplate>(new CalibrateAreaTemplate(*this));
}

DrawItemForbidenAreaType CalibrateAreaTemplate::forbiddenArea(const RuleProtocolItem& item) const
{
    return item.linkedItem() ? DrawItemForbidenAreaType::ForbidenOutsideParent
                             : DrawItemForbidenAreaType::ForbidenOtherItems;
}

EdgeLabelMode CalibrateAreaTemplate::edgeLabels(const RuleProtocolItem& item) const
{
    if (&item == regionItem() && isLaneMethod())
        return EdgeLabelMode::LengthAndWidth;
    return &item == regionItem() && isSceneMethod() ? EdgeLabelMode::Scene : EdgeLabelMode::Name;
}

QStringList CalibrateAreaTemplate::methods()
{
    return {kLaneMethod, kSceneMethod};
}

void CalibrateAreaTemplate::setMethod(const QString& method)
{
    if (method == kLaneMethod) {
        enableStaff(verticalStaffItem(), kAnyStaffs);
        enableStaff(horizontalStaffItem(), kAnyStaffs);
        setTitle(tr("Lane calibration"));
    } else if (method == kSceneMethod) {
        enableStaff(verticalStaffItem(), kVerticalStaffs);
        enableStaff(horizontalStaffItem(), kHorizontalStaffs);
        setTitle(tr("Scene calibration"));
    } else {
        return;
    }
    m_method = method;
}

bool CalibrateAreaTemplate::isSceneMethod() const
{
    return m_method == kSceneMethod;
}

bool CalibrateAreaTemplate::isLaneMethod() const
{
    return m_method == kLaneMethod;
}

void CalibrateAreaTemplate::setAreaPointCount(CountRange range)
{
    regionItem()->setPointCount(range);
}

void CalibrateAreaTemplate::setDefaultWidth(double width)
{
    m_defaultWidth = width;
    horizontalLengthItem()->setDefaultValue(width);
}

void CalibrateAreaTemplate::setDefaultHeight(double height)
{
    m_defaultHeight = height;
    verticalLengthItem()->setDefaultValue(height);
}

RuleProtocolItem* CalibrateAreaTemplate::regionItem() const
{
    return findItem(kRegion);
}

RuleProtocolItem* CalibrateAreaTemplate::verticalStaffItem() const
{
    return findItem(kVerticalStaff);
}

RuleProtocolItem* CalibrateAreaTemplate::horizontalStaffItem() const
{
    return findItem(kHorizontalStaff);
}

RuleProtocolItem* CalibrateAreaTemplate::verticalLengthItem() const
{
    return findItem(kVerticalLength);
}

RuleProtocolItem* CalibrateAreaTemplate::horizontalLengthItem() const
{
    return findItem(kHorizontalLength);
}
