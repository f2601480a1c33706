#pragma once

#include <QList>
#include <QLocale>

/// The locales whose texts somebody wants to read, the best first, none from English on: that the
/// texts are without a translation. Simplified Chinese is that of China, wherever it is read.
inline QList<QLocale> wantedLocales()
{
    QList<QLocale> wanted;
    const QStringList names = QLocale().uiLanguages();
    for (const QString& name : names) {
        const QLocale locale(name);
        if (locale.language() == QLocale::English || locale.language() == QLocale::C)
            break;
        const bool isSimplified = locale.language() == QLocale::Chinese &&
                                  locale.script() == QLocale::SimplifiedHanScript;
        wanted.append(isSimplified ? QLocale(QLocale::Chinese, QLocale::China) : locale);
    }
    return wanted;
}
