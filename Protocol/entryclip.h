#pragma once

#include "host/json/value.h"

#include <QString>
#include <string_view>

class RuleData;
class RuleDataInfo;

/**
 * An entry apart from its scene, as it is copied: JSON that names attributes by their keys rather
 * than by their places, so that a scene of the same kind with another template can take it, too.
 * EntryPaste is its mirror.
 *
 *     {"scene": "rules", "document": "...", "place": 0, "Name": "Gate", "Enable": true,
 *      "attributes": [{"key": "dwell", "caption": "Dwell time", "value": 5}],
 *      "figures": [{"key": "region", "caption": "Area", "kind": 1, "points": [[0, 0], ...]}]}
 */
namespace EntryClip
{

// Members.
constexpr std::string_view kScene = "scene";       ///< name of the scene's template
constexpr std::string_view kDocument = "document"; ///< digest of the configuration it is from
constexpr std::string_view kPlace = "place";   ///< position there, of a staff as well; -1 for none
constexpr std::string_view kSource = "source"; ///< see SceneProtocol::copiedPart()
constexpr std::string_view kAttributes = "attributes";
constexpr std::string_view kFigures = "figures"; ///< parents before children
constexpr std::string_view kKey = "key";
constexpr std::string_view kCaption = "caption";
constexpr std::string_view kValue = "value"; ///< null where the entry has none
constexpr std::string_view kKind = "kind";   ///< a BaseDrawType
constexpr std::string_view kPoints = "points";
constexpr std::string_view kDirections = "directions"; ///< of a parallelogram

/// @p entry of @p data; @p document is the digest of the configuration that it was read from,
/// @p asRead the entry there, null for a new one.
kql::Json::Value of(const RuleData& data, const RuleDataInfo& entry, const QString& document,
                    const kql::Json::Value* asRead);

/// Whether @p clip is an entry for scenes of the kind of @p data.
bool isFor(const RuleData& data, const kql::Json::Value& clip);

} // namespace EntryClip
