#include "host/api/kqmessagebox.h"
#include "tests/support/fixtures.h"
#include "tests/support/rulestest.h"
#include "tests/support/workbenchbench.h"
#include "workbench/language.h"

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

struct Translation {
    QString source;
    QString type; ///< empty for one that is finished and used
    QString text;
};

QVector<Translation> translationsIn(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QVector<Translation> found;
    QXmlStreamReader xml(&file);
    QString source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QString("source"))
            source = xml.readElementText();
        else if (xml.isStartElement() && xml.name() == QString("translation")) {
            const QString type = xml.attributes().value("type").toString();
            found.append({source, type, xml.readElementText()});
        }
    }
    return xml.hasError() ? QVector<Translation>() : found;
}

QString textOf(const QWidget* widget)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
        return button->text();
    const auto* label = qobject_cast<const QLabel*>(widget);
    return label ? label->text() : QString();
}

/// Everything that can be read in @p window, tool tips and menus included.
QStringList textsIn(const QWidget& window)
{
    QStringList texts;
    for (const QWidget* widget : window.findChildren<QWidget*>())
        texts << textOf(widget) << widget->toolTip() << widget->accessibleName();
    for (const QAction* action : window.findChildren<QAction*>())
        texts << action->text().section('\t', 0, 0) << action->toolTip();
    return texts;
}

} // namespace

class TstTranslations : public RulesTest
{
    Q_OBJECT

private slots:
    void everyTextIsTranslated_data()
    {
        QTest::addColumn<QString>("path");
        const QDir folder(RULES_SOURCE_DIR "/translations");
        for (const QFileInfo& file : folder.entryInfoList({"*.ts"}))
            QTest::newRow(qPrintable(file.fileName())) << file.filePath();
    }

    void everyTextIsTranslated()
    {
        QFETCH(const QString, path);
        int count = 0;
        for (const Translation& text : translationsIn(path)) {
            QVERIFY2(text.type.isEmpty() && !text.text.isEmpty(), qPrintable(text.source));
            QCOMPARE(markers(text.text), markers(text.source));
            ++count;
        }
        QVERIFY(count > 0);
    }

    void sourcesAndFilesHaveTheSameTexts_data()
    {
        QTest::addColumn<QString>("stem");
        QTest::addColumn<QStringList>("folders");
        QTest::newRow("module and host")
            << "IntelligentRulesUI"
            << QStringList{"plugin", "scene", "tabel", "Protocol", "draw", "host"};
        QTest::newRow("workbench") << "Workbench" << QStringList{"workbench"};
    }

    void sourcesAndFilesHaveTheSameTexts()
    {
        QFETCH(const QString, stem);
        QFETCH(const QStringList, folders);
        QTemporaryDir copies;
        QStringList arguments{"-silent", "-I", ".", "-disable-heuristic", "sametext"};
        arguments += folders;
        arguments.append("-ts");
        for (const QString language : {"de", "zh_CN"}) {
            const QString name = QString("/%1_%2.ts").arg(stem, language);
            QVERIFY(QFile::copy(RULES_SOURCE_DIR "/translations" + name, copies.path() + name));
            arguments.append(copies.path() + name);
        }
        QProcess update;
        update.setWorkingDirectory(RULES_SOURCE_DIR);
        update.start(RULES_LUPDATE, arguments);
        QVERIFY(update.waitForFinished() && update.exitCode() == 0);
        for (const QFileInfo& file : QDir(copies.path()).entryInfoList({"*.ts"})) {
            for (const Translation& text : translationsIn(file.filePath()))
                QVERIFY2(text.type.isEmpty(),
                         qPrintable(file.fileName() + ": " + text.type + ": " + text.source));
        }
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

    void nothingIsLeftInEnglish_data()
    {
        QTest::addColumn<QString>("example");
        for (const QString& example : ExampleFiles::names())
            QTest::newRow(qPrintable(example)) << example;
    }

    /// But what the example's documents have.
    void nothingIsLeftInEnglish()
    {
        QFETCH(const QString, example);
        const QString folder = ExampleFiles::folder(example);
        const QString documents = ExampleFiles::contentOf(folder + "template.json") +
                                  ExampleFiles::contentOf(folder + "config.json");
        QLocale::setDefault(QLocale("zh_CN"));
        const auto back = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });
        const Language language;
        WorkbenchWindow window(WorkbenchBench::example(example));
        QString error;
        QVERIFY2(window.start(error), qPrintable(error));
        QStringList texts = textsIn(window);
        QTimer::singleShot(0, &window, [&] {
            if (QWidget* const box = QApplication::activeModalWidget()) {
                texts += textsIn(*box);
                box->close();
            }
        });
        KQGUI::KQMessageBox::ShowInformation(&window, KQGUI::KQMessageBox::kQuestion, {}, {},
                                             QMessageBox::Yes | QMessageBox::No);
        for (QLineEdit* edit : window.rulesWindow()->findChildren<QLineEdit*>()) {
            edit->setEnabled(true);
            QContextMenuEvent wanted(QContextMenuEvent::Mouse, QPoint());
            QApplication::sendEvent(edit, &wanted);
            texts += textsIn(*edit);
        }
        QVERIFY(texts.contains("是(&Y)") && texts.contains("全选"));
        static const QRegularExpression chinese("[\\x{4e00}-\\x{9fff}]");
        static const QRegularExpression word("[A-Za-z]{3}");
        for (QString text : texts) {
            const QString stem = text.remove("...").remove("&");
            QVERIFY2(text.contains(chinese) || !text.contains(word) || documents.contains(stem),
                     qPrintable(text));
        }
    }
};

QTEST_MAIN(TstTranslations)
#include "tst_translations.moc"
