#pragma once

#include <QSize>
#include <QVariant>
#include <memory>
#include <vector>

class RuleData;
class RuleDataInfo;
class RuleProtocolItem;

/**
 * Stands in for the rows of one scene where there is no window, as far as a check asks them: those
 * of pairs of numbers, which an operator may have left half empty. The data's template is watched,
 * and has to live longer.
 */
class UnseenRows
{
public:
    explicit UnseenRows(const RuleData& data);
    ~UnseenRows();
    UnseenRows(const UnseenRows&) = delete;
    UnseenRows& operator=(const UnseenRows&) = delete;

    /// Shows @p entry of @p data; null for none.
    void load(const RuleData& data, const RuleDataInfo* entry);

    /// The pair that a row shows for @p value: -1 for what is empty.
    static QSize shownPair(const QVariant& value);
    /// Whether the window has a row for @p item at all.
    static bool isShown(const RuleData& data, const RuleProtocolItem& item);

private:
    class Row;

    std::vector<std::unique_ptr<Row>> m_rows;
};
