#pragma once

#include "tests/support/fixtures.h"

/// A small template with a rules and a global section, rules for it, and the parameter block in
/// which a host hands template and configuration over.
namespace SampleDocuments
{

inline const QByteArray kTemplate = Fixtures::contentOf(QStringLiteral("templates/sample.json"));

/// A complete rule; members in @p more come first in what is read.
inline QByteArray rule(const QByteArray& name, const QByteArray& more = {})
{
    return R"({"Name": ")" + name + R"(", "Enable": true, "Area": [[800, 800], [4000, 800],
               [4000, 4000]], "Low": 2, "High": 6)" +
           more + "}";
}

inline QByteArray config(const QByteArray& rules)
{
    return R"({"Rules": [)" + rules + R"(], "Global": {"Span": [1, 5], "Level": 4}})";
}

/// @p members says which channel, and what else there is; it may repeat what the block has.
inline QString block(const QByteArray& members, const QByteArray& configText,
                     const QByteArray& templateText = kTemplate)
{
    return QString::fromUtf8(R"({"algorithmId": "crossing", "channelName": "Gate 7", )"
                             R"("channelAbilityPO": )" +
                             configText + R"(, "videoConfigRuleProperty": )" + templateText + ", " +
                             members + "}");
}

} // namespace SampleDocuments
