#include "tests/support/rulestest.h"
#include "tests/support/workbenchbench.h"

#include <QLabel>
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
            if (xml.name() == QLatin1String("source"))
                source = xml.readElementText();
            if (xml.name() != QLatin1String("translation"))
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

    void windowSpeaksTheLocale_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("example");
        QTest::addColumn<QString>("scene");
        QTest::addColumn<QString>("object");
        QTest::addColumn<QString>("text");
        const auto add = [](const char* locale, const char* example, const char* scene,
                            const char* object, const char* text) {
            QTest::addRow("%s %s %s", locale, scene, object)
                << locale << example << scene << object << QString::fromUtf8(text);
        };
        add("fr_FR", "perimeter", "rules", "delete", "Delete");
        add("de_DE", "perimeter", "rules", "addRule", "Regel hinzufügen");
        add("de_AT", "perimeter", "rules", "redraw", "Neu");
        add("de_DE", "perimeter", "global", "titleLabel", "Globale Konfiguration");
        add("de_DE", "perimeter", "", "btnSave", "Sichern");
        add("de_DE", "traffic", "lanes", "titleLabel", "Fahrspurkonfiguration");
        add("zh_CN", "perimeter", "rules", "addRule", "添加规则");
        add("zh_CN", "perimeter", "rules", "hint", "单击左键添加点，单击右键完成绘制。");
        add("zh_CN", "fight-calibration", "fightCalibrate", "drawItems", "区域1");
        add("zh_CN", "scene-calibration", "calibrateArea", "drawItems", "区域1");
    }

    void windowSpeaksTheLocale()
    {
        QFETCH(const QString, locale);
        QFETCH(const QString, example);
        QFETCH(const QString, scene);
        QFETCH(const QString, object);
        QFETCH(const QString, text);
        const QLocale before;
        QLocale::setDefault(QLocale(locale));
        {
            WorkbenchWindow window(WorkbenchBench::example(example));
            QString error;
            QVERIFY2(window.start(error), qPrintable(error));
            const PanelFinder finder(window.rulesWindow());
            QWidget* panel = scene.isEmpty() ? window.rulesWindow() : finder.panel(scene);
            QWidget* shown = finder.part(panel, object);
            if (object == QLatin1String("drawItems"))
                shown = finder.entryButtons(panel, false).value(0);
            QCOMPARE(textOf(shown), text);
        }
        QLocale::setDefault(before);
    }
};

QTEST_MAIN(TstTranslations)
#include "tst_translations.moc"
