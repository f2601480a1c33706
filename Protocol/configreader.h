#pragma once

#include <memory>
#include <vector>

class RuleData;
namespace kql
{
namespace Json
{
class Value;
}
} // namespace kql

/**
 * Fills scenes from a device's configuration: an entry for each rule, lane or area that the
 * document holds, and its figures on the scene's canvas.
 *
 * Never fails: what is missing or of another kind is skipped. ConfigWriter is its mirror.
 */
class ConfigReader
{
public:
    /// @p scenes are not owned and must outlive the reader.
    explicit ConfigReader(const std::vector<std::unique_ptr<RuleData>>& scenes);

    void read(const kql::Json::Value& document);

private:
    const std::vector<std::unique_ptr<RuleData>>& m_scenes;
};
