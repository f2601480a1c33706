#include "Protocol/datatemplate.h"
#include "Protocol/entryname.h"
#include "Protocol/entrypaste.h"
#include "Protocol/jsonpath.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "tests/support/examplefiles.h"
#include "tests/support/fixtures.h"
#include "tests/support/mailbox.h"
#include "tests/support/rulestest.h"

#include <algorithm>

using kql::Json::Value;

namespace
{

const char* const kTemplate = R"({
    "configDescription": {"ruleDescription": {"rules": {"parent": "R[]", "controls": [
        {"key": "A", "protocol": {"name": "A", "type": "int", "index": -1}},
        {"key": "S", "protocol": {"name": "S", "type": "string", "index": -1}},
        {"key": "T", "protocol": {"name": "T", "type": "array int", "index": -1}},
        {"key": "O", "protocol": {"name": "O", "type": "object", "index": -1}},
        {"key": "P[]", "protocol": {"name": "P[]", "type": "point", "index": -1}}]}}},
    "configItems": {"A": {"describe": "a", "facade": "inputBoxNumber", "range": [1, 600]},
                    "S": {"describe": "s", "facade": "checkbox", "enumeration": [
                        {"name": "D", "value": "d"}, {"name": "E", "value": "e"},
                        {"name": "F", "value": "f"}]},
                    "T": {"describe": "t", "facade": "numericalInterval"},
                    "P[]": {"describe": "p", "facade": "region"}},
    "configTemplate": {"R": [{"A": 5, "S": ["d"], "T": [1, 2], "O": {"X": 1}, "P": [[1, 1]]}]}})";
const char* const kGate = R"({"R": [{"Name": "Gate", "P": [[1, 2], [3, 8100], [5, 6]]}]})";

struct Document {
    RuleParser parser;

    Document(const QString& templateText, const QString& config)
    {
        parser.parseTemplate(templateText);
        parser.readData(config);
        parser.findLosses();
    }
    RuleData& scene(std::size_t position = 0) const { return *parser.getAllData()[position]; }
    Value written() const
    {
        Value config;
        parser.writeData(config);
        return config;
    }
};

int figureCount(const RuleData& data)
{
    return data.getDrawScene()->getItemList(BaseDrawType::None, 0).size();
}

void removeEntry(RuleData& data, int dataId)
{
    while (const DrawItem* figure = data.figures().of(dataId).value(0))
        data.getDrawScene()->removeItem(figure->itemId());
    data.removeDataInfo(dataId);
}

/// @p document with the entry at @p position behind the others, in all that the scene is made of.
Value rotated(Value document, const RuleData& data, int position)
{
    for (const TemplateSection& section : data.getTemplate()->sections()) {
        Value& list = *JsonPath(section.parent).find(document);
        for (int i = position; i + 1 < list.size(); ++i)
            std::swap(list[i], list[i + 1]);
    }
    return document;
}

} // namespace

class TstEntryClip : public RulesTest
{
    Q_OBJECT

private slots:
    void copiesAreWrittenAlike_data()
    {
        QTest::addColumn<QString>("folder");
        for (const QString& name : ExampleFiles::names())
            QTest::newRow(qPrintable(name)) << ExampleFiles::folder(name);
    }

    /// Each entry of each section, cut out and pasted: into the document that it is from, and into
    /// another camera's, where it is a new one.
    void copiesAreWrittenAlike()
    {
        QFETCH(const QString, folder);
        const QString rules = ExampleFiles::contentOf(folder + "template.json");
        const QString config = ExampleFiles::contentOf(folder + "config.json");
        const Document from(rules, config);
        int copied = 0;
        for (std::size_t s = 0; s < from.parser.getAllData().size(); ++s) {
            if (from.scene(s).getSceneType() == SceneType::Global)
                continue;
            for (int i = 0; i < from.scene(s).getDataCount(); ++i) {
                const RuleDataInfo& entry = *from.scene(s).getAllData()[std::size_t(i)];
                const QString digest = from.parser.documentDigest();
                const QString text = from.parser.copyOf(from.scene(s), entry).toCompactText();
                for (const QString& there : {digest, QString("another camera")}) {
                    const Document to(rules, config);
                    RuleData& scene = to.scene(s);
                    removeEntry(scene, scene.getAllData()[std::size_t(i)]->id());
                    const int id = EntryPaste(scene, there).add(Mailbox::json(text));
                    QCOMPARE(scene.indexOf(id), scene.getDataCount() - 1);
                    const Value expected = rotated(from.written(), scene, i);
                    QVERIFY2(to.written() == expected, qPrintable(to.written().toStyledText()));
                    QCOMPARE(to.parser.notices(), QStringList());
                    const Value again = to.parser.copyOf(scene, *scene.getDataInfo(id));
                    removeEntry(scene, id);
                    EntryPaste(scene, digest).add(again);
                    QVERIFY2(to.written() == expected, "a copy of the copy");
                    ++copied;
                }
            }
        }
        QVERIFY(copied > 2);
    }

    /// What the configuration says in a way of its own is said so of the copy, too.
    void keepsSpellings()
    {
        const char* const config = R"({"R": [{"Name": "G", "A": "5", "S": [], "T": [1, 2.5],
                                              "O": {}, "P": [], "Enable": "on"}]})";
        const Document document(kTemplate, config);
        RuleData& rules = document.scene();
        const QString digest = document.parser.documentDigest();
        const Value clip = document.parser.copyOf(rules, *rules.getAllData().front());
        EntryPaste(rules, digest).add(clip);
        Value list = document.written()["R"];
        list[1]["Name"] = list[0]["Name"];
        QCOMPARE(list[1], list[0]);
    }

    void hostileClips_data() { Fixtures::addRows("clips.json"); }

    void hostileClips()
    {
        QFETCH(const Value, fixture);
        const Document document(kTemplate, kGate);
        QVERIFY(EntryPaste(document.scene(), "its own").add(fixture["clip"]) > 0);
        const Value written = document.written();
        QVERIFY2(written["R"][1] == fixture["written"], qPrintable(written.toStyledText()));
        QCOMPARE(document.parser.notices().join('\n'),
                 Fixtures::textsOf(fixture["notices"]).join('\n'));
        document.scene().saveNotices().forgetLeftOut();
        QVERIFY(!document.parser.notices().join(' ').contains("left out"));
    }

    /// However much was left out before.
    void tellsWhatWasLeftOutLast()
    {
        const Document document(kTemplate, kGate);
        Value many;
        for (int i = 0; i < 200; ++i) {
            Value attribute = Mailbox::json(R"({"value": 1})");
            attribute["key"] = QString("Unknown%1").arg(i);
            attribute["caption"] = QString("Unknown%1").arg(i);
            many["attributes"].append(attribute);
        }
        EntryPaste(document.scene(), {}).add(many);
        QVERIFY(document.parser.notices().join(' ').contains("Unknown199"));
        EntryPaste(document.scene(), {})
            .add(Mailbox::json(
                R"({"attributes": [{"key": "Last", "caption": "Last", "value": 1}]})"));
        QVERIFY(document.parser.notices().join(' ').contains("Last"));
    }

    void refusesTooMuch_data()
    {
        QTest::addColumn<QString>("member");
        QTest::addColumn<QString>("element");
        QTest::addColumn<int>("count");
        const QString figure = R"({"key": "P[]", "kind": 1, "points": [%1]})";
        const QString text = R"({"key": "O", "value": ["%1"]})";
        QTest::newRow("figures") << "figures" << figure.arg("") << 40000;
        QTest::newRow("points") << "figures"
                                << figure.arg("[1,1]" + QString(",[1,1]").repeated(70000)) << 1;
        QTest::newRow("text") << "attributes" << text.arg(QString(1 << 20, 'x')) << 40;
    }

    void refusesTooMuch()
    {
        QFETCH(const QString, member);
        QFETCH(const QString, element);
        QFETCH(const int, count);
        const Document document(kTemplate, kGate);
        const Value before = document.written();
        Value clip = Mailbox::json(R"({"scene": "rules"})");
        const Value one = Mailbox::json(element);
        for (int i = 0; i < count; ++i)
            clip[member.toStdString()].append(one);
        QCOMPARE(EntryPaste(document.scene(), {}).add(clip), 0);
        QCOMPARE(document.written(), before);
        QCOMPARE(figureCount(document.scene()), 1);
        QVERIFY(EntryPaste(document.scene(), {}).add(Mailbox::json("{}")) > 0);
    }

    void numbersNames_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<QString>("copy");
        const QString twenty = "abcdefghijklmnopqrst";
        QTest::newRow("free") << QStringList("Gate") << "Gate1"
                              << "Gate1";
        QTest::newRow("from 2") << QStringList("Gate") << "Gate"
                                << "Gate2";
        QTest::newRow("next free") << QStringList{"Gate", "Gate2", "Gate3"} << "Gate"
                                   << "Gate4";
        QTest::newRow("on") << QStringList{"Gate9"} << "Gate9"
                            << "Gate10";
        QTest::newRow("zeros") << QStringList{"Gate-009"} << "Gate-009"
                               << "Gate-010";
        QTest::newRow("digits alone") << QStringList{"7"} << "7"
                                      << "8";
        QTest::newRow("cut") << QStringList(twenty) << twenty << "abcdefghijklmnopqrs2";
        QTest::newRow("cut more") << QStringList("abcdefghijklmnopqr99") << "abcdefghijklmnopqr99"
                                  << "abcdefghijklmnopq100";
        QTest::newRow("many digits") << QStringList("Gate9999999999") << "Gate9999999999"
                                     << "Gate10000000000";
        QTest::newRow("nothing but digits")
            << QStringList(QString(20, '9')) << QString(20, '9') << "10000000000000000000";
        QTest::newRow("no half character")
            << QStringList("abcdefghijklmnopqr\U0001F6A6") << "abcdefghijklmnopqr\U0001F6A6"
            << "abcdefghijklmnopqr2";
        QTest::newRow("as rules without a name are saved") << QStringList{"Gate", ""} << "Rule2"
                                                           << "Rule3";
    }

    void numbersNames()
    {
        QFETCH(const QStringList, names);
        QFETCH(const QString, wanted);
        const Document document(kTemplate, "{}");
        for (const QString& name : names)
            document.scene().addDataInfo(document.scene().newDataInfo())->setName(name);
        QTEST(EntryName::ofCopy(document.scene(), wanted), "copy");
    }
};

QTEST_MAIN(TstEntryClip)
#include "tst_entryclip.moc"
