#pragma once

#include "host/json/fwd.h"

#include <QtGlobal>
#include <memory>
#include <vector>

class RuleData;

/**
 * How long the text may become that a save hands over. Only what may be too long is printed to
 * find out: most documents are far from it, and thousands of them are checked at once.
 */
class SaveLength
{
public:
    /// Whether the message of a save has no room for @p config, indented as it is there. A part of
    /// the message is set aside for what else it says, as the channel.
    static bool isTooLong(const kql::Json::Value& config);

    /// Of @p scenes, which were made of @p rulesTemplate; one may be filled anew afterwards, but
    /// they stay in number and order.
    SaveLength(const kql::Json::Value& rulesTemplate,
               const std::vector<std::unique_ptr<RuleData>>& scenes);
    /// Whether what is written of @p scenes, which were read from @p configuration, cannot be too
    /// long, whatever was edited in rows. @p algorithmText, in bytes, is written into each entry.
    bool isSurelyShort(const std::vector<std::unique_ptr<RuleData>>& scenes,
                       const kql::Json::Value& configuration, qint64 algorithmText) const;

private:
    qint64 m_ofTemplate = 0;
    std::vector<qint64> m_perEntry; ///< of each scene
};
