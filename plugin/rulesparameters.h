#pragma once

#include "host/api/rtspvideoparam.h"
#include "host/json/value.h"

#include <QString>
#include <optional>

namespace IntelligentRulesUI
{

/// The host's parameter block for one load: a camera channel and an analytics algorithm.
struct RulesParameters {
    QString algorithmId;
    int algorithmType = 0;
    QString algorithmCode;
    QString channelId;
    QString shownChannel; ///< the channel's serial number where it is given, or else its id
    QString channelName;
    kql::Json::Value templateDocument;
    kql::Json::Value configuration;
    bool hasConfig = false; ///< whether there is more in it than an empty object
    bool selectionMode = false;
    bool editable = true;
    /// The stream to show; without an address the channel's live picture is shown.
    PreviewLogical::RtspVideoParam stream;

    /// Reads the block; nothing when it is not JSON or lacks a required member.
    static std::optional<RulesParameters> parse(const QString& json, int session);
};

} // namespace IntelligentRulesUI
