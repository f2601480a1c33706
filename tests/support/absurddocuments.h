#pragma once

#include <QByteArray>
#include <QStringList>
#include <vector>

/// Templates and configurations, as text, that no device sends.
namespace AbsurdDocuments
{

struct Pair {
    QByteArray name;
    QByteArray description;
    QByteArray config;
};

/// @p text with 0 to @p count - 1 in the place of %1, separated by commas.
QByteArray list(int count, const QByteArray& text);

/**
 * A quarter of a million texts that share their hash, whatever its seed, where Qt hashes by
 * CRC-32C: they differ by multiples of its polynomial. Compared with each other they take minutes.
 */
QStringList ofOneHash();

/// A template whose entries are rules with these controls and their details, in a list "R".
/// @p entry is the skeleton's, @p more are further members of the section.
QByteArray rules(const QByteArray& controls, const QByteArray& details, const QByteArray& entry,
                 const QByteArray& more = {});

/// Rules with a region "Area" of 3 to 10 points.
QByteArray areas();

/// A configuration of one rule with these members.
QByteArray oneRule(const QByteArray& members);

/// Documents with too many of each thing that they may have many of: @p count, of points
/// sixty times as many.
std::vector<Pair> crowded(int count);

} // namespace AbsurdDocuments
