#pragma once

#include <QDockWidget>

struct MessageRecord;
class QPlainTextEdit;
class QTreeWidget;

/// Lists every message in both directions; the selected one's JSON is shown beside the list.
/// User names and passwords of addresses are left out.
class MessageDock : public QDockWidget
{
    Q_OBJECT

public:
    explicit MessageDock(QWidget* parent = nullptr);

    void add(const MessageRecord& message);

private:
    void showSelected();

    QTreeWidget* m_list;
    QPlainTextEdit* m_text;
};
