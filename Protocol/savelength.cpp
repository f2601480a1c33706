#include "Protocol/savelength.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entrywriter.h"
#include "Protocol/jsonpath.h"
#include "Protocol/ruledata.h"
#include "host/api/limits.h"
#include "host/json/value.h"

using kql::Json::Value;

namespace
{

// All in bytes.
constexpr qint64 kRoomForOthers = 65'536;
/// A value's line, and the one that closes a list or an object: indentation, brackets, a number.
constexpr qint64 kLine = qint64{4} * Limits::kIndentedLevels + 32;
constexpr qint64 kEscaped = 6; ///< of a byte of a text
/// What a scene writes into each entry besides attributes: names, lines, points.
constexpr qint64 kMembers = 64 * kLine;
/// A staff that the configuration has as {} is written with all of its members, and so on.
constexpr qint64 kCompleted = 16;

/// At most so long is the indented text of @p value, wherever in a document it stands.
qint64 mostText(const Value& value)
{
    qint64 text = 2 * kLine + kEscaped * qint64(value.asView().size());
    const int count = value.isArray() || value.isObject() ? value.size() : 0;
    for (int i = 0; i < count; ++i) {
        text += mostText(value.isArray() ? value[i] : value.memberValue(i));
        text += kEscaped * qint64(value.memberName(i).size());
    }
    return text;
}

qint64 mostPerEntry(const RuleData& data, const Value& skeleton)
{
    qint64 text = kMembers;
    for (const TemplateSection& section : data.getTemplate()->sections()) {
        const EntryWriter writer(data, section.name);
        const Value* const first = JsonPath(section.parent).firstEntryIn(skeleton);
        text += mostText(writer.emptyEntry()) + mostText(writer.prototype(first));
    }
    return text;
}

} // namespace

bool SaveLength::isTooLong(const Value& config)
{
    if (mostText(config) + kRoomForOthers <= Limits::kStyledText)
        return false;
    Value result;
    result["channelAbilityPO"] = config;
    const std::string text = result.toStyledString();
    return text.empty() || qint64(text.size()) + kRoomForOthers > Limits::kStyledText;
}

SaveLength::SaveLength(const Value& rulesTemplate,
                       const std::vector<std::unique_ptr<RuleData>>& scenes)
    : m_ofTemplate(mostText(rulesTemplate))
{
    for (const auto& scene : scenes)
        m_perEntry.push_back(mostPerEntry(*scene, rulesTemplate["configTemplate"]));
}

/// The template counts once for the skeleton, and of each scene for defaults.
bool SaveLength::isSurelyShort(const std::vector<std::unique_ptr<RuleData>>& scenes,
                               const Value& configuration, qint64 algorithmText) const
{
    qint64 text = m_ofTemplate + kCompleted * mostText(configuration);
    for (std::size_t i = 0; i < scenes.size(); ++i)
        text +=
            m_ofTemplate + scenes[i]->getDataCount() * (m_perEntry[i] + kEscaped * algorithmText);
    return text + kRoomForOthers <= Limits::kStyledText;
}
