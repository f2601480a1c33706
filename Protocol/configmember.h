#pragma once

#include "Protocol/jsonpath.h"

#include <QString>
#include <string_view>

/// Member names of a configuration that no template gives, each in one place.
namespace ConfigMember
{

/// Template section that the items of rules belong to.
inline const QString kRuleSection = QStringLiteral("rules");

// A rule.
constexpr std::string_view kName = "Name";
constexpr std::string_view kEnable = "Enable";
constexpr std::string_view kConfig = "Config";
constexpr std::string_view kType = "Type"; ///< of a rule's "Config", and of a staff

// A lane.
constexpr std::string_view kLeftLine = "LeftLine";
constexpr std::string_view kRightLine = "RightLine";

// A calibrate area and its staffs.
constexpr std::string_view kMethod = "Method";
constexpr std::string_view kStaffs = "Staffs";
constexpr std::string_view kVertical = "Vertical";
constexpr std::string_view kHorizontal = "Horizontal";
constexpr std::string_view kLength = "Length";
constexpr std::string_view kStart = "Start";
constexpr std::string_view kEnd = "End";

/// Direction points of an entry's parallelogram.
const JsonPath& directionPath();

} // namespace ConfigMember
