#pragma once

#include "host/json/value.h"
#include "workbench/messagerecord.h"

#include <QList>
#include <QString>
#include <optional>

class PanelFinder;
class QWidget;

/// Compares what a session expects with what the window shows and the module posted.
class SessionExpectation
{
public:
    /// @p box: text of the last message box; @p posted: the module's messages so far, a list that
    /// grows while check() waits. Both are not owned and must outlive this.
    SessionExpectation(const PanelFinder& finder, const std::optional<QString>& box,
                       const QList<MessageRecord>& posted);

    /// What does not hold, or an empty text.
    QString check(const kql::Json::Value& step) const;

private:
    using Value = kql::Json::Value;

    QString checkBox(const Value& step) const;
    QString checkPosted(const Value& step) const;
    QString checkMembers(const Value& members) const;
    QString checkNotice(const Value& step) const;
    QString checkFocus(const Value& step) const;
    QString checkPanel(const Value& step) const;
    QString checkHint(QWidget& panel, const Value& step) const;
    QString checkEntries(QWidget& panel, const Value& step) const;
    QString checkRow(QWidget& panel, const Value& step) const;

    const PanelFinder& m_finder;
    const std::optional<QString>& m_box;
    const QList<MessageRecord>& m_posted;
};
