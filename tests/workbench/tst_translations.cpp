#include "tests/support/fixtures.h"
#include "tests/support/rulestest.h"
#include "tests/support/workbenchbench.h"

#include <QXmlStreamReader>

namespace
{

QStringList markers(const QString& text)
{
    static const QRegularExpression marker(QString("%\\d"));
    QStringList found;
    for (auto matches = marker.globalMatch(text); matches.hasNext();)
        found.append(matches.next().captured());
    found.sort();
    return found;
}

QString textOf(const QWidget* widget)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        return button->text();
    const auto* label = qobject_cast<const QLabel*>(widget);
    return label ? label->text() : QString();
}

} // namespace

class TstTranslations : public RulesTest
{
    Q_OBJECT

private slots:
    void everyTextIsTranslated_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::newRow("German") << "de";
        QTest::newRow("Chinese") << "zh_CN";
    }

    void everyTextIsTranslated()
    {
        QFETCH(const QString, locale);
        QFile file(QString(RULES_SOURCE_DIR "/translations/IntelligentRulesUI_%1.ts").arg(locale));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        QString source;
        int count = 0;
        while (!xml.atEnd()) {
            xml.readNext();
            if (!xml.isStartElement())
                continue;
            if (xml.name() == QString("source"))
                source = xml.readElementText();
            if (xml.name() != QString("translation"))
                continue;
            QVERIFY2(!xml.attributes().hasAttribute("type"), qPrintable(source));
            const QString translation = xml.readElementText();
            QVERIFY2(!translation.isEmpty(), qPrintable(source));
            QCOMPARE(markers(translation), markers(source));
            ++count;
        }
        QVERIFY(!xml.hasError());
        QVERIFY(count > 0);
    }

    void windowSpeaksTheLocale_data() { Fixtures::addRows("locales.json"); }

    void windowSpeaksTheLocale()
    {
        QFETCH(const kql::Json::Value, fixture);
        const auto text = [&](const char* name) { return fixture[name].asString(); };
        const QLocale before;
        QLocale::setDefault(QLocale(text("locale")));
        WorkbenchWindow window(WorkbenchBench::example(text("example")));
        QString error;
        QVERIFY2(window.start(error), qPrintable(error));
        QLocale::setDefault(before);
        const PanelFinder finder(window.rulesWindow());
        QWidget* panel =
            text("scene").isEmpty() ? window.rulesWindow() : finder.panel(text("scene"));
        const QWidget* shown = text("object") == "drawItems"
                                   ? finder.entryButtons(panel, false).value(0)
                                   : finder.part(panel, text("object"));
        QCOMPARE(textOf(shown), text("text"));
    }
};

QTEST_MAIN(TstTranslations)
#include "tst_translations.moc"
