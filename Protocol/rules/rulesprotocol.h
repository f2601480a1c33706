#pragma once

#include "Protocol/sceneprotocol.h"

/// The scenes whose entries their template alone describes.
class GlobalProtocol : public SceneProtocol
{
public:
    void read(RuleData& data, const kql::Json::Value& document) const override;
    bool write(const RuleData& data, const TemplateSection& section, const WriteContext& context,
               kql::Json::Value& document) const override
    {
        return writeGlobal(data, section, context, document);
    }
    EntryTarget::WhenMissing whenMissing() const override
    {
        return EntryTarget::WhenMissing::Object;
    }
    RuleProtocolItem* entryFigureItem(const DataTemplate&) const override { return nullptr; }

protected:
    std::unique_ptr<RuleDataInfo> newEntry(const RuleData& data,
                                           const kql::Json::Value& json) const override;

private:
    bool writeGlobal(const RuleData& data, const TemplateSection& section,
                     const WriteContext& context, kql::Json::Value& document) const;
};

/// Rules, which have a name and a switch besides.
class RulesProtocol final : public GlobalProtocol
{
public:
    void read(RuleData& data, const kql::Json::Value& document) const override;
    bool write(const RuleData& data, const TemplateSection& section, const WriteContext& context,
               kql::Json::Value& document) const override
    {
        return writeRule(data, section, context, document);
    }
    EntryTarget::WhenMissing whenMissing() const override { return EntryTarget::WhenMissing::List; }
    RuleProtocolItem* entryFigureItem(const DataTemplate& dataTemplate) const override;

    /// Whether algorithms with this id have each rule's "Config"."Type" set.
    static bool isTyped(int algorithmId);
    /// Sets that of the rule @p json; false where something else than an object is in its way.
    static bool writeType(const QString& algorithmName, kql::Json::Value& json);
    /// Sets in @p entries, one for each entry of @p data, what every rule has besides its
    /// attributes.
    static void writeRuleMembers(const RuleData& data, const WriteContext& context,
                                 std::vector<kql::Json::Value>& entries);

private:
    bool writeRule(const RuleData& data, const TemplateSection& section,
                   const WriteContext& context, kql::Json::Value& document) const;
};
