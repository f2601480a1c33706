#pragma once

#include <QWidget>

class QLineEdit;

/// A top-level window of the client: an edit of its own, and a container whose first page is empty
/// and whose others are rules windows.
class ClientPlace : public QWidget
{
public:
    enum Kind { Tabs, Stack, Splitter, Column, KindCount };

    explicit ClientPlace(Kind kind);

    QLineEdit* edit() const { return m_edit; }
    /// The container becomes the window's parent.
    void take(QWidget* window);
    /// Shows page @p number, counted round, and no other; splitters show all.
    void turn(int number);

private:
    void turnColumn(int number);

    Kind m_kind;
    QLineEdit* m_edit;
    QWidget* m_container;
};
