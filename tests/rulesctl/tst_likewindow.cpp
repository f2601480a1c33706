#include "Protocol/ruleparser.h"
#include "tests/support/examplefiles.h"
#include "tests/support/rulestest.h"
#include "tests/support/ruleswindow.h"
#include "tests/support/sampledocuments.h"
#include "tools/rulesctl/documents/loadedrules.h"
#include "tools/rulesctl/documents/templatedocument.h"
#include "tools/rulesctl/savefailure.h"

using kql::Json::Value;

namespace
{

/// Calls @p found with each member and element below @p value, of points with the first alone.
void forEachPart(Value& value, const std::function<void(Value& part)>& found)
{
    const bool arePoints = value.isArray() && (value[0].isArray() || value[0].isNumeric());
    const int count = arePoints ? 1 : value.size();
    for (int i = 0; i < count; ++i) {
        Value& part = value.isArray() ? value[i] : value.memberValue(i);
        found(part);
        forEachPart(part, found);
    }
}

/// The document with one value in a place of others' at a time.
std::vector<Value> changed(const Value& document)
{
    const Value others[] = {Value(), Value("x"), Value(-1)};
    std::vector<Value> documents;
    Value copy = document;
    forEachPart(copy, [&](Value& part) {
        for (const Value& other : others) {
            Value before = std::exchange(part, other);
            documents.push_back(copy);
            part = std::move(before);
        }
    });
    return documents;
}

/// What an operator saw on Save, and what was saved.
struct Saved {
    QString refused; ///< the box's text; empty for none
    Value config;
};

Saved saveOf(RulesWindow& window)
{
    Saved saved;
    for (const QString& box : window.save()) {
        if (box.startsWith("Error: "))
            saved.refused = box.mid(int(strlen("Error: ")));
    }
    const auto messages = window.mailbox.take();
    if (!messages.isEmpty())
        saved.config = Mailbox::json(messages.last().p2.toString())["channelAbilityPO"];
    return saved;
}

} // namespace

/// What is told and written without a window is what the window would.
class TstLikeWindow : public RulesTest
{
    Q_OBJECT

private slots:
    void answersAsTheWindowDoes_data();
    void answersAsTheWindowDoes();
    void findsWhatCannotBeWritten();
    void refusesWhatTheWindowDoesNotSend_data();
    void refusesWhatTheWindowDoesNotSend();
    void refusesTextThatIsTooLong();
};

void TstLikeWindow::answersAsTheWindowDoes_data()
{
    QTest::addColumn<QByteArray>("rulesTemplate");
    QTest::addColumn<QByteArray>("config");
    for (const QString& name : ExampleFiles::names()) {
        const QString folder = ExampleFiles::folder(name);
        QTest::newRow(qPrintable(name)) << ExampleFiles::contentOf(folder + "template.json")
                                        << ExampleFiles::contentOf(folder + "config.json");
    }
    const QByteArray twins = SampleDocuments::rule("Gate") + ',' + SampleDocuments::rule("Gate");
    QTest::newRow("two rules of one name")
        << SampleDocuments::kTemplate << SampleDocuments::config(twins);
}

void TstLikeWindow::answersAsTheWindowDoes()
{
    QFETCH(const QByteArray, rulesTemplate);
    QFETCH(const QByteArray, config);
    const TemplateDocument document{"", Mailbox::json(rulesTemplate), {}};
    LoadedRules rules(document);
    RulesWindow window;
    std::vector<Value> configs = changed(Mailbox::json(config));
    configs.push_back(Mailbox::json(config));
    int refusals = 0;
    for (const Value& changedConfig : configs) {
        const QByteArray text = changedConfig.toCompactText().toUtf8();
        window.window->setData(SampleDocuments::block(R"("channalId": "C7")", text, rulesTemplate),
                               5);
        const Saved saved = saveOf(window);
        QString why;
        Value written;
        QVERIFY2(rules.load(changedConfig, why), qPrintable(why));
        QVERIFY(rules.parser().writeData(written));
        const auto failures = SaveFailure::of(rules);
        QStringList messages;
        for (const SaveFailure& failure : failures)
            messages.append(failure.message);
        refusals += failures.empty() ? 0 : 1;
        QVERIFY2(saved.refused.isEmpty() ? failures.empty() : messages.contains(saved.refused),
                 qPrintable(saved.refused + '\n' + messages.join('\n')));
        if (failures.empty())
            QVERIFY2(written == saved.config, text.constData());
    }
    QVERIFY(refusals > 0);
}

void TstLikeWindow::findsWhatCannotBeWritten()
{
    const QByteArray place = R"("parent": "Rules[]")";
    QVERIFY(SampleDocuments::kTemplate.contains(place));
    for (const QByteArray& parent :
         {QByteArray("Rules"), QByteArray("Name.Rules[]"), QByteArray()}) {
        QByteArray text = SampleDocuments::kTemplate;
        Value rulesTemplate = Mailbox::json(text.replace(place, R"("parent": ")" + parent + '"'));
        rulesTemplate["configTemplate"]["Name"] = "no object";
        LoadedRules rules({"", rulesTemplate, {}});
        QString why;
        Value config;
        Value* target = &config;
        for (const QString& part : QString(parent).remove("[]").split('.'))
            target = &(*target)[part.toStdString()];
        *target = Mailbox::json('[' + SampleDocuments::rule("Gate") + ']');
        QVERIFY(rules.load(config, why));
        const auto refusal = rules.parser().writeRefusal();
        Value written;
        QCOMPARE(rules.parser().writeData(written, why), !refusal);
        if (refusal)
            QCOMPARE(refusal->why, why);
    }
}

void TstLikeWindow::refusesWhatTheWindowDoesNotSend_data()
{
    QTest::addColumn<QByteArray>("skeleton");
    QTest::addColumn<QString>("why");
    const QString noSkeleton = R"(The template has no "configTemplate" to write into.)";
    QTest::newRow("number to write into") << QByteArray("5") << noSkeleton;
    QTest::newRow("list to write into") << QByteArray("[]") << noSkeleton;
    QTest::newRow("null to write into") << QByteArray("null") << QString();
}

void TstLikeWindow::refusesWhatTheWindowDoesNotSend()
{
    QFETCH(const QByteArray, skeleton);
    QFETCH(const QString, why);
    const QByteArray rulesTemplate =
        R"({"configDescription": {"ruleDescription": {"rules": {"parent": "Rules[]"}}}, )"
        R"("configTemplate": )" +
        skeleton + '}';
    RulesWindow window;
    window.window->setData(SampleDocuments::block(R"("channalId": "C7")", "{}", rulesTemplate), 5);
    window.save();
    QCOMPARE(window.find<QLabel>("lblHint")->text(),
             why.isEmpty() ? QString() : "Nothing was saved. " + why);
    QCOMPARE(window.mailbox.take().size(), why.isEmpty() ? 1 : 0);
    LoadedRules rules({"", Mailbox::json(rulesTemplate), {}});
    QString told;
    QVERIFY(rules.load(Value(), told));
    const auto failures = SaveFailure::of(rules);
    QCOMPARE(failures.empty() ? QString() : failures.front().message, why);
}

/// A line for each number, indented by 128: what the window asks of the parser, too.
void TstLikeWindow::refusesTextThatIsTooLong()
{
    constexpr int kDeep = 32;
    const QByteArray path = QByteArray("D.").repeated(kDeep) + "Rules[]";
    LoadedRules rules({"",
                       Mailbox::json(R"({"configDescription": {"ruleDescription": )"
                                     R"({"rules": {"parent": ")" +
                                     path + R"("}}}, "configTemplate": {}})"),
                       {}});
    const QByteArray numbers = '[' + QByteArray("1,").repeated(2'200'000) + "1]";
    QString told;
    QVERIFY(
        rules.load(Mailbox::json(QByteArray(R"({"D":)").repeated(kDeep) + R"({"Rules":[{"Name":)" +
                                 numbers + "}]" + QByteArray(kDeep + 1, '}')),
                   told));
    const auto failures = SaveFailure::of(rules);
    QCOMPARE(failures.size(), 1U);
    QCOMPARE(failures.front().message, "The configuration is too long.");
    Value written;
    QVERIFY(!rules.parser().writeData(written, told));
    QCOMPARE(told, failures.front().message);
}

QTEST_MAIN(TstLikeWindow)
#include "tst_likewindow.moc"
