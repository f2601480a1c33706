#pragma once

#include <QSet>
#include <QSize>
#include <QVariant>
#include <memory>
#include <optional>
#include <vector>

class RuleData;
class RuleDataInfo;
class RuleProtocolItem;

/**
 * Stands in for the rows of one scene where there is no window, as far as a check asks them: those
 * of pairs of numbers, which an operator may have left half empty. The data is not owned; its
 * template, and the entry that is shown, have to live as long as the rows are asked.
 */
class UnseenRows
{
public:
    explicit UnseenRows(const RuleData& data);
    ~UnseenRows();
    UnseenRows(const UnseenRows&) = delete;
    UnseenRows& operator=(const UnseenRows&) = delete;

    /// Shows @p entry, as long as its values stay; null for none.
    void load(const RuleDataInfo* entry);

    /// The pair that a row shows for @p value: -1 for what is empty.
    static QSize shownPair(const QVariant& value);
    /// Whether the window has a row for @p item at all.
    static bool isShown(const RuleData& data, const RuleProtocolItem& item);

private:
    class Row;

    QVariant valueOf(const RuleProtocolItem& item) const;
    bool applies(const RuleProtocolItem& item) const;

    const RuleData& m_data;
    const RuleDataInfo* m_entry = nullptr;
    mutable std::optional<QSet<const RuleProtocolItem*>> m_hidden; ///< looked up when needed
    std::vector<std::unique_ptr<Row>> m_rows;
};
