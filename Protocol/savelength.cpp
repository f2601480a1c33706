#include "Protocol/savelength.h"

#include "host/api/limits.h"
#include "host/json/value.h"

using kql::Json::Value;

namespace
{

// All in bytes.
constexpr qint64 kRoomForOthers = 65536;
/// A value's line, and the one that closes a list or an object: indentation, brackets, a number.
constexpr qint64 kLine = qint64{4} * Limits::kIndentedLevels + 32;
constexpr qint64 kEscaped = 6; ///< of a byte of a text
/// What a scene writes into each entry besides attributes: names, lines, points.
constexpr qint64 kMembers = 64 * kLine;
/// A staff that the configuration has as {} is written with all of its members, and so on.
constexpr qint64 kCompleted = 16;

} // namespace

qint64 SaveLength::mostText(const Value& value)
{
    qint64 text = 2 * kLine + kEscaped * qint64(value.asView().size());
    const int count = value.isArray() || value.isObject() ? value.size() : 0;
    for (int i = 0; i < count; ++i) {
        text += mostText(value.isArray() ? value[i] : value.memberValue(i));
        text += kEscaped * qint64(value.memberName(i).size());
    }
    return text;
}

/// An entry has at most all of the template twice, its defaults and what the skeleton has for one.
bool SaveLength::isSurelyShort(qint64 entries, qint64 typeText, qint64 templateText,
                               qint64 configurationText)
{
    const qint64 perEntry = 2 * templateText + kMembers + kEscaped * typeText;
    return kCompleted * configurationText + (entries + 1) * perEntry + kRoomForOthers <=
           Limits::kStyledText;
}

bool SaveLength::isTooLong(const Value& config)
{
    if (mostText(config) + kRoomForOthers <= Limits::kStyledText)
        return false;
    Value result;
    result["channelAbilityPO"] = config;
    const std::string text = result.toStyledString();
    return text.empty() || qint64(text.size()) + kRoomForOthers > Limits::kStyledText;
}
