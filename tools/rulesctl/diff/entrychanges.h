#pragma once

#include "tools/rulesctl/diff/change.h"
#include "tools/rulesctl/diff/comparedentry.h"

#include <optional>
#include <vector>

/// What became of one entry.
class EntryChanges
{
public:
    /// An entry and its position, from 0.
    struct Side {
        const ComparedEntry& entry;
        int position;
    };

    /// Of entries of the section @p scene.
    explicit EntryChanges(const QString& scene) : m_scene(scene) {}

    Change added(const Side& b) const { return whole(Change::Kind::Added, std::nullopt, b); }
    Change removed(const Side& a) const { return whole(Change::Kind::Removed, a, std::nullopt); }
    /// Of one that is in both: its name, its place where @p isMoved, its switch, values, figures.
    std::vector<Change> between(const Side& a, const Side& b, bool isMoved) const;

private:
    Change whole(Change::Kind kind, const std::optional<Side>& a,
                 const std::optional<Side>& b) const;
    Change change(Change::Kind kind, const RuleProtocolItem& item, const Side& a,
                  const Side& b) const;
    void addHead(const Side& a, const Side& b, bool isMoved, std::vector<Change>& changes) const;
    void addFigures(const RuleProtocolItem& item, const Side& a, const Side& b,
                    std::vector<Change>& changes) const;
    std::optional<Change> ofFigure(const RuleProtocolItem& item, const ComparedEntry::Figure* was,
                                   const ComparedEntry::Figure* is, const Side& a,
                                   const Side& b) const;

    QString m_scene;
};
