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

    void windowSpeaksTheLocale()
    {
        const auto check = [](const char* locale, const char* example, const char* scene,
                              const char* object, const char* text) {
            QLocale::setDefault(QLocale(locale));
            WorkbenchWindow window(WorkbenchBench::example(example));
            QString error;
            QVERIFY2(window.start(error), qPrintable(error));
            const PanelFinder finder(window.rulesWindow());
            QWidget* panel = *scene ? finder.panel(scene) : window.rulesWindow();
            const QWidget* shown = qstrcmp(object, "drawItems") == 0
                                       ? finder.entryButtons(panel, false).value(0)
                                       : finder.part(panel, object);
            QCOMPARE(textOf(shown), QString::fromUtf8(text));
        };
        const QLocale before;
        check("fr_FR", "perimeter", "rules", "delete", "Delete");
        check("fr_FR", "traffic", "detectArea", "titleLabel", "Detection configuration");
        check("fr_FR", "fight-calibration", "fightCalibrate", "titleLabel", "Fight configuration");
        check("fr_FR", "scene-calibration", "calibrateArea", "titleLabel", "Scene calibration");
        check("fr_FR", "lane-calibration", "calibrateArea", "titleLabel", "Lane calibration");
        check("de_DE", "perimeter", "rules", "addRule", "Regel hinzufügen");
        check("de_AT", "perimeter", "rules", "redraw", "Neu");
        check("de_DE", "perimeter", "global", "titleLabel", "Globale Konfiguration");
        check("de_DE", "perimeter", "", "btnSave", "Sichern");
        check("de_DE", "traffic", "lanes", "titleLabel", "Fahrspurkonfiguration");
        check("zh_CN", "perimeter", "rules", "hint", "单击左键添加点，单击右键完成绘制。");
        check("zh_CN", "fight-calibration", "fightCalibrate", "drawItems", "区域1");
        check("zh_CN", "scene-calibration", "calibrateArea", "drawItems", "区域1");
        QLocale::setDefault(before);
    }
};

QTEST_MAIN(TstTranslations)
#include "tst_translations.moc"
