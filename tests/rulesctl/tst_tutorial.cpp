#include "tests/support/examplefiles.h"
#include "tests/support/rulestest.h"

#include <QProcess>
#include <QRegularExpression>

namespace
{

/// A block of code on a page: "json FILE" and the like are saved, "sh" is run, "text STATUS" is
/// what it answers.
struct Block {
    QString kind, word, content;
};

QList<Block> blocksOf(const QString& page)
{
    const QRegularExpression fence("^```(\\w+)(?: (\\S+))?\\n(.*?)^```$",
                                   QRegularExpression::MultilineOption |
                                       QRegularExpression::DotMatchesEverythingOption);
    QList<Block> blocks;
    auto found = fence.globalMatch(page);
    while (found.hasNext()) {
        const auto match = found.next();
        blocks.append({match.captured(1), match.captured(2), match.captured(3)});
    }
    return blocks;
}

} // namespace

/// What the pages for integrators and users of the programs say is so.
class TstTutorial : public RulesTest
{
    Q_OBJECT

    struct Outcome {
        int status = -1;
        QString out, errors;
    };

    Outcome run(const QString& program, const QStringList& arguments) const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("PATH", RULES_BIN_DIR ":" + environment.value("PATH"));
        environment.insert("LC_ALL", "C.UTF-8");
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(m_folder.path());
        process.start(program, arguments);
        if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
            return {};
        return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

    QTemporaryDir m_folder;

private slots:
    void isAsThePageSays()
    {
        const QString page = ExampleFiles::contentOf(RULES_SOURCE_DIR "/docs/tutorial.md");
        const QList<Block> blocks = blocksOf(page);
        int commands = 0;
        for (int i = 0; i < blocks.size(); ++i) {
            const Block& block = blocks[i];
            if (block.kind == "text")
                continue;
            if (block.kind != "sh") {
                QFile file(m_folder.filePath(block.word));
                QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(file.fileName()));
                file.write(block.content.toUtf8());
                continue;
            }
            const Block next = blocks.value(i + 1);
            const bool answers = next.kind == "text";
            const Outcome outcome = run("sh", {"-ec", block.content});
            const QString told = block.content + outcome.out + outcome.errors;
            QCOMPARE(outcome.out, answers ? next.content : QString());
            QVERIFY2(outcome.status == (answers ? next.word.toInt() : 0), qPrintable(told));
            ++commands;
        }
        QCOMPARE(commands, page.count("```sh"));
    }

    /// Options that the program has, and no others.
    void workbenchHasItsPage()
    {
        const auto optionsOf = [](QString text) {
            const QRegularExpression option("--([a-z][a-z-]+)");
            QStringList found;
            auto each = option.globalMatch(text.replace("\\-", "-"));
            while (each.hasNext())
                found.append(each.next().captured(1));
            found.removeDuplicates();
            found.sort();
            return found;
        };
        const Outcome help = run("sh", {"-c", "rules-workbench --help"});
        QVERIFY(help.status == 0 && optionsOf(help.out).size() > 10);
        QCOMPARE(
            optionsOf(ExampleFiles::contentOf(RULES_SOURCE_DIR "/packaging/rules-workbench.1")),
            optionsOf(help.out));
    }
};

QTEST_MAIN(TstTutorial)
#include "tst_tutorial.moc"
