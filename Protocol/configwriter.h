#pragma once

#include <QString>
#include <memory>
#include <optional>
#include <vector>

class RuleData;
struct MissingPlace;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/**
 * Writes scenes into a configuration that starts as the template's skeleton. The first element
 * of an array there is the prototype of every entry written. ConfigReader is its mirror.
 */
class ConfigWriter
{
public:
    /// @p scenes and @p configuration (the document that the scenes were read from, null when
    /// there was none) are not owned and must outlive the writer.
    ConfigWriter(const std::vector<std::unique_ptr<RuleData>>& scenes,
                 const kql::Json::Value& configuration);

    /// Each rule's "Config"."Type" becomes @p name when @p id is 1.
    void setAlgorithmInfo(int id, const QString& name);

    /// Writes every scene into @p config, which holds the skeleton. Stops at the first entries that
    /// it has no place for, and returns where that would be; nothing when all are written.
    std::optional<MissingPlace> write(kql::Json::Value& config) const;

private:
    const std::vector<std::unique_ptr<RuleData>>& m_scenes;
    const kql::Json::Value& m_configuration;
    int m_algorithmId = 0;
    QString m_algorithmName;
};
