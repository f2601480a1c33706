#pragma once

#include <QCoreApplication>

class QMenu;

/// The menu of line edits in the module's language: its texts are Qt's, and a client may load no
/// translation of them.
class EditMenu
{
    Q_DECLARE_TR_FUNCTIONS(EditMenu)

public:
    EditMenu() = delete;

    /// Translates what @p menu, which QLineEdit made, has of Qt's texts, its keys included.
    static void translate(const QMenu& menu);
    /// Keys, as QKeySequence writes them everywhere, as they are written on keyboards.
    static QString keyName(QString keys);
};
