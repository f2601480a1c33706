#include "host/api/kqmessagebox.h"

#include "host/api/limits.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QPointer>

namespace KQGUI
{
namespace
{

QString shortened(const QString& text)
{
    QString shown = text.left(Limits::kTip);
    shown.replace(QChar::LineSeparator, QLatin1Char('\n'));
    shown.replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
    shown = shown.section(QLatin1Char('\n'), 0, Limits::kBoxLines - 1);
    return shown.size() < text.size() ? shown + QChar(0x2026) : shown;
}

/// Qt's own texts of the buttons are translated only where a translation of Qt is loaded.
void nameButtons(const QMessageBox& box)
{
    const struct {
        QMessageBox::StandardButton button;
        QString text;
    } names[] = {{QMessageBox::Ok, QCoreApplication::translate("KQMessageBox", "OK")},
                 {QMessageBox::Yes, QCoreApplication::translate("KQMessageBox", "&Yes")},
                 {QMessageBox::No, QCoreApplication::translate("KQMessageBox", "&No")}};
    for (const auto& name : names) {
        if (QAbstractButton* const button = box.button(name.button))
            button->setText(name.text);
    }
}

QMessageBox::StandardButton show(QWidget* parent, QMessageBox::Icon icon, const QString& title,
                                 const QString& text, QMessageBox::StandardButtons buttons)
{
    // On the heap, as a parent that goes takes its box along.
    const QPointer<QMessageBox> box(new QMessageBox(parent));
    box->setIcon(icon);
    box->setWindowTitle(title);
    box->setTextFormat(Qt::PlainText);
    box->setText(shortened(text));
    box->setStandardButtons(buttons);
    nameButtons(*box);
    const auto answer = static_cast<QMessageBox::StandardButton>(box->exec());
    if (!box)
        return QMessageBox::NoButton;
    delete box.data();
    return answer;
}

} // namespace

void KQMessageBox::ShowError(QWidget* parent, const QString& title, const QString& text)
{
    show(parent, QMessageBox::Critical, title, text, QMessageBox::Ok);
}

void KQMessageBox::ShowNotice(QWidget* parent, const QString& title, const QString& text)
{
    show(parent, QMessageBox::Information, title, text, QMessageBox::Ok);
}

QMessageBox::StandardButton KQMessageBox::ShowInformation(QWidget* parent, int type,
                                                          const QString& title, const QString& text,
                                                          QMessageBox::StandardButtons buttons)
{
    const auto icon = type == kQuestion ? QMessageBox::Question : QMessageBox::Information;
    return show(parent, icon, title, text, buttons);
}

} // namespace KQGUI
