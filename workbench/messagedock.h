#pragma once

#include "workbench/messagerecord.h"

#include <QDockWidget>
#include <QTime>

#include <deque>

class QPlainTextEdit;
class QTreeWidget;

/// Lists every message in both directions; the selected one's JSON is shown beside the list.
/// User names and passwords of addresses are left out. The list is made when it is first shown.
class MessageDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit MessageDock(QWidget* parent = nullptr);

    void add(const MessageRecord& message);

protected:
    void showEvent(QShowEvent* event) override;

private:
    struct Entry {
        QTime time;
        MessageRecord message;
    };

    void makeList();
    void append(const Entry& entry);
    void showSelected();

    std::deque<Entry> m_waiting;      ///< what came before the list was made
    QTreeWidget* m_list = nullptr;    ///< null until then
    QPlainTextEdit* m_text = nullptr; ///< null until then
};
