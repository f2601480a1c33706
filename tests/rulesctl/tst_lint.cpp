#include "host/json/reader.h"
#include "tests/support/examplefiles.h"
#include "tests/support/rulestest.h"
#include "tools/rulesctl/documents/templatedocument.h"
#include "tools/rulesctl/lint/againstlint.h"
#include "tools/rulesctl/lint/configlint.h"
#include "tools/rulesctl/lint/lintedtemplate.h"
#include "tools/rulesctl/lint/templatelint.h"

#include <algorithm>

using kql::Json::Value;

namespace
{

/// Of these rules have one member more that is not theirs.
constexpr int kTypedAlgorithm = 1;

const auto kFixtures = QStringLiteral(RULES_SOURCE_DIR "/tests/rulesctl/lint");

struct ReadFile {
    explicit ReadFile(const QString& path) : text(ExampleFiles::contentOf(path))
    {
        kql::Json::Reader().parse(utf8(), document);
    }
    std::string_view utf8() const { return {text.constData(), std::size_t(text.size())}; }

    QByteArray text;
    Value document;
};

/// Of a template, alone or against CASE.older.json, or of a configuration of CASE.template.json.
Findings lint(const QString& path, const QString& testCase)
{
    const ReadFile read(path);
    const QString configured = testCase + ".template.json";
    if (QFile::exists(configured))
        return ConfigLint({configured, ReadFile(configured).document, {}})
            .run({read.utf8(), {}, read.document});
    const LintedTemplate linted(read.document, kTypedAlgorithm);
    const QString older = testCase + ".older.json";
    Findings against;
    if (QFile::exists(older))
        against = AgainstLint::run(linted, LintedTemplate(ReadFile(older).document));
    return TemplateLint::run(linted, read.utf8(), against);
}

/// What editors jump to, and what they offer.
QStringList linesOf(const Findings& findings)
{
    QStringList lines;
    for (const Finding& finding : findings) {
        QString line =
            QStringLiteral("%1:%2 %3 %4 %5")
                .arg(finding.line)
                .arg(finding.column)
                .arg(QLatin1String(finding.isError() ? "error" : "warning"),
                     QString::fromStdString(finding.code), QString::fromStdString(finding.pointer));
        if (!finding.suggestion.isNull())
            line += QStringLiteral(" -> ") + finding.suggestion;
        lines.append(line);
    }
    return lines;
}

bool hasCode(const Findings& findings, const QString& code)
{
    return std::any_of(findings.begin(), findings.end(), [&code](const Finding& finding) {
        return finding.code == code.toStdString();
    });
}

} // namespace

class TstLint : public RulesTest
{
    Q_OBJECT

private slots:
    void findsWhatIsWrong_data();
    void findsWhatIsWrong();
    void tellsWhatIsReadInstead();
    void hasNothingToSayOfTheExamples();
};

/// A folder for each code: CASE.json has it, CASE.twin.json beside it is right, CASE.expected says
/// all that is found.
void TstLint::findsWhatIsWrong_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("path");
    const QStringList codes = QDir(kFixtures).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& code : codes) {
        const QDir folder(kFixtures + '/' + code);
        for (const QString& name : folder.entryList({QStringLiteral("*.expected")})) {
            const QString path = folder.filePath(name).chopped(int(sizeof ".expected") - 1);
            QTest::addRow("%s %s", qPrintable(code), qPrintable(name)) << code << path;
        }
    }
}

void TstLint::findsWhatIsWrong()
{
    QFETCH(QString, code);
    QFETCH(QString, path);
    const Findings findings = lint(path + ".json", path);
    const QString found = linesOf(findings).join('\n') + '\n';
    QCOMPARE(found, QString::fromUtf8(ExampleFiles::contentOf(path + ".expected")));
    QVERIFY(hasCode(findings, code));
    QVERIFY(!hasCode(lint(path + ".twin.json", path), code));
}

void TstLint::tellsWhatIsReadInstead()
{
    QStringList messages;
    const QString wrong = kFixtures + "/wrong-kind/";
    for (const QString& name : {wrong + "read-instead.json", wrong + "range-of-64-bits.json"}) {
        for (const Finding& finding : lint(name, {}))
            messages.append(finding.message);
    }
    QCOMPARE(
        messages.join('\n'),
        QStringList({"this is no integer, and is read as 0", "this is no integer, and is read as 0",
                     "this is no array or null, and is ignored",
                     "this is no string, and is read as an empty text",
                     "this is no boolean, and is read as false",
                     "a default of this control is string; new entries have none",
                     "a default of this control is integer or null; read as 1",
                     "this is beyond 32 bits, and is read as 2147483647"})
            .join('\n'));
}

void TstLint::hasNothingToSayOfTheExamples()
{
    for (const QString& name : ExampleFiles::names()) {
        const QString path = ExampleFiles::folder(name) + "template.json";
        QCOMPARE(name + linesOf(lint(path, {})).join("\n"), name);
        const ReadFile config(ExampleFiles::folder(name) + "config.json");
        const Findings findings = ConfigLint({path, ReadFile(path).document, {}})
                                      .run({config.utf8(), {}, config.document});
        QCOMPARE(name + linesOf(findings).join("\n"), name);
    }
}

QTEST_MAIN(TstLint)
#include "tst_lint.moc"
