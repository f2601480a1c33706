#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

class RuleData;
class RuleParser;

/**
 * Takes rules over from one configuration into others of the same template, with the lanes that
 * they belong to. Figures stay where they are, and values are those that a save of the first
 * configuration writes.
 */
class Rollout
{
public:
    enum class WhereTaken {
        Replace, ///< a rule of that name becomes the new one, in its place
        AddToo,  ///< it stays, and the new one gets a number behind its name
    };

    /// @p source is what a save of the first configuration writes, read again. Not owned.
    Rollout(const RuleParser& source, const QStringList& names, WhereTaken whereTaken)
        : m_source(source), m_names(names), m_whereTaken(whereTaken)
    {
        m_names.removeDuplicates();
    }

    /// The first name that the source has not, or not once, in a sentence; empty for none.
    QString fault() const;

    /// Takes the rules over into @p target, one after another. One that is there already, under its
    /// name or one with a number behind it, is not added once more.
    void applyTo(const RuleParser& target) const;

    /// What @p target, which applyTo() was asked for, has not of what the rules say, in a sentence;
    /// empty for nothing. It is what a save of it wrote, read again.
    QString notTaken(const RuleParser& target) const;

private:
    /// The scene of the rules; null when the template has none.
    static RuleData* rulesOf(const RuleParser& scenes);
    static int positionOf(const RuleData& data, const QString& name);
    /// @p used are ids of entries that stand for other rules already.
    void apply(const RuleData& source, int position, RuleData& target, QSet<int>& used) const;
    static void replace(const RuleData& source, int position, RuleData& target, int at);
    /// Returns the id that it gets.
    static int add(const RuleData& source, int position, RuleData& target);

    const RuleParser& m_source;
    QStringList m_names;
    WhereTaken m_whereTaken;
};
