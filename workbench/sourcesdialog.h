#pragma once

#include "workbench/sourcebook.h"

#include <QDialog>

class QCheckBox;
class QDialogButtonBox;
class QLabel;
class QTableWidget;

/// Which address gives each channel's picture, and whether user names and passwords are kept for
/// the next run. They show only in the address that is being edited.
class SourcesDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SourcesDialog(const SourceBook::Addresses& addresses, bool remembersLogins = false,
                           QWidget* parent = nullptr);

    /// What the table says; rows without channel and address do not count.
    SourceBook::Addresses addresses() const;
    bool remembersLogins() const;

private:
    void createButtons();
    void appendRow(const QString& channel, const QString& address);
    void addChannel();
    void removeChannel();
    void editAddress();
    void chooseFile();
    QString problem() const;
    QString textAt(int row, int column) const;
    void check();

    QTableWidget* m_table;
    QCheckBox* m_remember;
    QLabel* m_problem;
    QDialogButtonBox* m_buttons;
};
