#include "tabel/editmenu.h"

#include <QMenu>

void EditMenu::translate(const QMenu& menu)
{
    static const char* const kTexts[] = {
        QT_TRANSLATE_NOOP("EditMenu", "&Undo"),     QT_TRANSLATE_NOOP("EditMenu", "&Redo"),
        QT_TRANSLATE_NOOP("EditMenu", "Cu&t"),      QT_TRANSLATE_NOOP("EditMenu", "&Copy"),
        QT_TRANSLATE_NOOP("EditMenu", "&Paste"),    QT_TRANSLATE_NOOP("EditMenu", "Delete"),
        QT_TRANSLATE_NOOP("EditMenu", "Select All")};
    const QList<QAction*> actions = menu.actions();
    for (QAction* action : actions) {
        const QString text = action->text().section(QLatin1Char('\t'), 0, 0);
        const QString keys = keyName(action->text().mid(text.size()));
        for (const char* const known : kTexts) {
            if (text == QCoreApplication::translate("QLineEdit", known))
                action->setText(tr(known) + keys);
        }
    }
}

QString EditMenu::keyName(QString keys)
{
    return keys.replace(QLatin1String("Ctrl"), tr("Ctrl"))
        .replace(QLatin1String("Shift"), tr("Shift"));
}
