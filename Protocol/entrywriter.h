#pragma once

#include "Protocol/entryfigures.h"
#include "host/json/value.h"

#include <QString>
#include <map>
#include <utility>
#include <vector>

class DataTemplate;
class RuleData;
class RuleDataInfo;
class RuleProtocolItem;

/**
 * Writes what a template's items name of one entry after another into copies of a prototype.
 * EntryReader is its mirror.
 */
class EntryWriter
{
public:
    /// Writes the items of @p data's template that belong to @p section. Nothing is owned.
    EntryWriter(const RuleData& data, const QString& section);

    /// What every entry starts as: @p skeleton with as many elements in its lists as items are
    /// elements of them, or without one an object in which every item's path exists.
    kql::Json::Value prototype(const kql::Json::Value* skeleton) const;
    /// The latter.
    kql::Json::Value emptyEntry() const;

    /// Writes @p entry into @p json; @p asRead is the object that it was read from, if any.
    void write(const RuleDataInfo& entry, const kql::Json::Value* asRead,
               kql::Json::Value& json) const;

    /// Writes the points of the entry's first figure of @p item, whose place is made.
    void writeMadePoints(const RuleProtocolItem& item, const RuleDataInfo& entry,
                         kql::Json::Value& json) const;

    /// Whether @p item's value is one of several for a place that has but one in @p entry.
    bool lacksElement(const RuleProtocolItem& item, const kql::Json::Value& entry) const;

    const EntryFigures& figures() const { return m_figures; }

private:
    struct Target {
        const RuleProtocolItem* item;
        int sharedField; ///< that other items write to, too, however it is spelled; -1 for none
        bool isFurtherElement; ///< of a field that others write an earlier element of
    };
    struct Pass;
    /// A shared field, and which element of it; -1 for the field itself.
    using Place = std::pair<int, int>;
    /// The later, the more it counts; the rows that the operator sees go last.
    enum class Sight { NoOthers, Hidden, WithoutRow, Shown };
    /// Likewise: what was read and converted, what was read and kept, what was entered since.
    enum class State { Converted, Kept, Entered };
    using Weight = std::pair<Sight, State>;
    using Weights = std::map<Place, Weight>;
    /// What one target has to write, and how much it counts among those of its place.
    struct Step {
        const Target* target;
        Weight weight;
        Place place;

        bool isKept() const { return weight.second == State::Kept; }
    };

    void markSharedFields();
    void collectElements();
    void makeElements(const Pass& pass) const;
    static bool lacksElement(const Target& target, const kql::Json::Value& entry);
    static Place placeOf(const Target& target, const kql::Json::Value& json);
    std::vector<Step> collectSteps(const Pass& pass) const;
    static Weight weigh(const Target& target, bool isHidden, const Pass& pass);
    static Weights heaviestOf(const std::vector<Step>& steps, const Pass& pass);
    static bool yields(const Step& step, const Weights& heaviest);
    static void writeAsRead(const Target& target, const kql::Json::Value& kept, const Pass& pass);
    void writeItem(const Target& target, const Pass& pass) const;
    static void writeValueToJson(const Target& source, const Pass& pass);
    static void putValue(const Target& source, const Pass& pass, kql::Json::Value& field);
    void writeFigure(const RuleProtocolItem& item, const Pass& pass) const;

    std::vector<Target> m_targets;
    std::vector<Target> m_elements; ///< of array-valued fields, the last ones first
    const DataTemplate& m_template;
    EntryFigures m_figures;
};
