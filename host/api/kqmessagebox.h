#pragma once

#include "host/api/kqhostexport.h"

#include <QMessageBox>

namespace KQGUI
{

/**
 * The host's modal boxes. Texts are shown as they stand, never as rich text. The parent may go
 * while a box is open; the box then closes without an answer.
 */
class KQHOST_EXPORT KQMessageBox
{
public:
    /// Kind of ShowInformation() that asks the operator to decide.
    static constexpr int kQuestion = 1;

    KQMessageBox() = delete;

    static void ShowError(QWidget* parent, const QString& title, const QString& text);
    static void ShowNotice(QWidget* parent, const QString& title, const QString& text);

    /// The button pressed; NoButton when the box went with its parent.
    static QMessageBox::StandardButton ShowInformation(QWidget* parent, int type,
                                                       const QString& title, const QString& text,
                                                       QMessageBox::StandardButtons buttons);
};

} // namespace KQGUI
