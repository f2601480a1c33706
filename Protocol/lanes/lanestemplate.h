#pragma once

#include "Protocol/datatemplate.h"

#include <QCoreApplication>

class RuleData;

/// Template of the lanes scene: its built-in items, and the rules' items when these are edited
/// per lane.
class LanesTemplate : public DataTemplate
{
    Q_DECLARE_TR_FUNCTIONS(LanesTemplate)

public:
    // Keys of the built-in items.
    inline static const QString kLane = QStringLiteral("lanesLanes");
    inline static const QString kNumber = QStringLiteral("lanesNum");
    inline static const QString kLeftLineType = QStringLiteral("lanesLeftLineType");
    inline static const QString kRightLineType = QStringLiteral("lanesRightLineType");
    /// Key of the rules' item that hands them to the lanes.
    inline static const QString kRuleLaneNumber = QStringLiteral("ruleLaneNumber");

    LanesTemplate();
    /// That of @p data; null when it has one of another kind.
    static LanesTemplate* of(const RuleData& data);
    std::unique_ptr<DataTemplate> clone() const override;
    /// The rules' section behind the lanes', with rule items.
    std::vector<TemplateSection> sections() const override;
    DrawItemForbidenAreaType forbiddenArea(const RuleProtocolItem& item) const override;

    /// Takes over the rules' items behind the built-in ones.
    void addRuleItems(Items items);
    bool hasRuleItems() const;

    RuleProtocolItem* laneItem() const { return findItem(kLane); }
    RuleProtocolItem* numberItem() const { return findItem(kNumber); }
    RuleProtocolItem* leftLineTypeItem() const { return findItem(kLeftLineType); }
    RuleProtocolItem* rightLineTypeItem() const { return findItem(kRightLineType); }
    /// The rules' lane number; null without rule items.
    RuleProtocolItem* ruleLaneNumberItem() const { return findItem(kRuleLaneNumber); }

protected:
    LanesTemplate(const LanesTemplate& other) = default;
};
