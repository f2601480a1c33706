#include "Protocol/datatemplate.h"
#include "Protocol/figuremaker.h"
#include "Protocol/misfit.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valueconversion.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "tests/support/examplefiles.h"
#include "tests/support/fixtures.h"
#include "tests/support/mailbox.h"
#include "tests/support/rulestest.h"

#include <functional>

using kql::Json::Value;
const auto json = &Mailbox::json;

namespace
{

QString text(const Value& value)
{
    return value.toStyledText().simplified();
}

/// A template and a configuration that are read, and what is done to the first scene.
struct Load {
    RuleParser parser;

    Load(const QString& templateText, const QString& config)
    {
        isRead = parser.parseTemplate(templateText) && parser.readData(config);
        parser.findLosses();
    }
    /// Of a fixture, with its edits.
    explicit Load(const Value& fixture)
        : Load(fixture["template"].toStyledText(), fixture["config"].toStyledText())
    {
        for (int i = 0; i < fixture["edits"].size(); ++i)
            edit(fixture["edits"][i]);
    }
    RuleData& scene() const { return *parser.getAllData().front(); }
    /// Below 0 the last one.
    RuleDataInfo& entry(int position = 0) const
    {
        const auto& all = scene().getAllData();
        return position < 0 ? *all.back() : *all[static_cast<std::size_t>(position)];
    }
    QString written() const
    {
        Value config;
        return parser.writeData(config) ? text(config) : QString("not written");
    }

    bool isRead = false;

private:
    /// Of an entry, of a new one where a step names none.
    void edit(const Value& step) const
    {
        if (step.isMember("remove"))
            return scene().removeDataInfo(entry(step["remove"].asInt()).id());
        const RuleDataInfo& edited = step.isMember("entry")
                                         ? entry(step["entry"].asInt())
                                         : *scene().addDataInfo(scene().newDataInfo());
        if (step.isMember("set"))
            scene()
                .getDataInfo(edited.id())
                ->setValue(step["set"].asString(), Fixtures::valueOf(step["to"]));
        if (step.isMember("draw"))
            draw(step["draw"].asInt(), edited, step["points"]);
    }
    /// Draws a figure of the template's item at @p item for @p entry.
    void draw(int item, const RuleDataInfo& entry, const Value& points) const
    {
        const auto& protocolItem = scene().getTemplate()->items()[static_cast<std::size_t>(item)];
        auto drawn = FigureMaker::make(*scene().getTemplate(), *protocolItem, entry,
                                       DrawItemForbidenAreaType::ForbidenNone);
        for (int i = 0; i < points.size(); ++i)
            drawn->figure()->appendPoint({points[i][0].asInt(), points[i][1].asInt()});
        drawn->figure()->setFinished(true);
        scene().getDrawScene()->addItem(std::move(drawn), -1);
    }
};

const QString kRules = R"({"configDescription": {"ruleDescription": {"rules": {"parent": "R[]"}}},
                          "configTemplate": %1})";

QString roundTrip(const QString& templateText, const QString& config)
{
    return Load(templateText, config).written();
}

/// Calls @p visit each time that one value in @p place has become another one; of a list, whose
/// elements are alike, the first and the last.
void mutate(Value& place, const std::function<void()>& visit)
{
    static const Value kinds = json(R"([null, true, -7, 1e300, "x", [], [[1, 2]],
                                        {}, [null], [{}], {"Name": []}])");
    const int step = place.isArray() ? qMax(1, place.size() - 1) : 1;
    for (int i = 0; i < place.size(); i += step)
        mutate(place.isArray() ? place[i] : place.memberValue(i), visit);
    const Value original = place;
    for (int i = 0; i < kinds.size(); ++i) {
        place = kinds[i];
        visit();
    }
    place = original;
}

} // namespace

class TstConfig : public RulesTest
{
    Q_OBJECT

private slots:
    void values_data() { Fixtures::addRows("values.json"); }

    void values()
    {
        QFETCH(const Value, fixture);
        RuleProtocolItem item;
        item.setValueType(RuleParser::parseToValueType(fixture["type"].asString()));
        item.setIndex(fixture["index"].asInt());
        const QVariant value = Fixtures::valueOf(fixture["value"]);
        const QVariant read = ValueConversion::parseJsonToValue(fixture["found"], item);
        QCOMPARE(read, value);
        QCOMPARE(read.userType(), value.userType());
        Value place = fixture["place"];
        ValueConversion::toJson(read, item, place, &fixture["found"]);
        QCOMPARE(text(place), text(fixture["written"]));

        const QString before = text(place);
        const bool isCleared = item.valueType() == ValueType::String && place.isArray();
        ValueConversion::toJson(QVariant(), item, place);
        QCOMPARE(text(place), isCleared ? QString("[]") : before);
    }

    void saves_data() { Fixtures::addRows("saving"); }

    /// What is saved, by default the configuration as it was read; what the line beside Save tells,
    /// sentence for sentence; and what the last entry shows. Saved once, it stays as it is.
    void saves()
    {
        QFETCH(const Value, fixture);
        const Load load(fixture);
        const QString written = load.written();
        if (fixture.isMember("saved") || !fixture.isMember("notices"))
            QCOMPARE(written, text(fixture[fixture.isMember("saved") ? "saved" : "config"]));
        if (fixture.isMember("notices"))
            QCOMPARE(load.parser.notices().join('\n'),
                     Fixtures::textsOf(fixture["notices"]).join('\n'));
        for (const QString& key : fixture["shown"].memberNames())
            QCOMPARE(load.entry(-1).value(key).toString(),
                     fixture["shown"][key.toStdString()].asString());
        if (!fixture.isMember("edits"))
            QCOMPARE(roundTrip(fixture["template"].toStyledText(), written), written);
    }

    void tellsDeepMembers()
    {
        const auto nested = [](const char* value) {
            return QString(R"({"X": %1%2%3})").arg(QString(400, '['), value, QString(400, ']'));
        };
        QCOMPARE(Load(kRules.arg(nested("1")), nested("2")).parser.notices(),
                 QStringList(R"("X" is not saved: no attribute names it.)"));
    }

    void explainsMisfits()
    {
        const Load load(Fixtures::read("saving/notices.json")["one place is missing"]);
        for (const bool isLost : {true, false}) {
            const QString said =
                Misfit::explained(load.scene(), load.entry(), isLost ? "A.B" : "C");
            QVERIFY(!said.isEmpty());
            QVERIFY2(said.contains("is not saved") == isLost, qPrintable(said));
        }
    }

    void writesTheAlgorithmsType()
    {
        Load typed(Fixtures::read("saving/edits.json")["bare rule"]);
        typed.parser.setAlgorithmInfo(2, "code");
        QVERIFY(!json(typed.written())["R"][0].isMember("Config"));
        typed.parser.setAlgorithmInfo(1, "code");
        QCOMPARE(json(typed.written())["R"][0]["Config"]["Type"], Value("code"));
    }

    void refusals()
    {
        const Value fixture = Fixtures::read("saving/lanes.json")["lane without a rule"];
        const Load unread(kRules.arg("{}"), "{");
        QVERIFY(!unread.isRead);
        QCOMPARE(unread.scene().getDataCount(), 0);
        QCOMPARE(unread.written(), QString("{}"));
        const Load bare(R"({"configDescription": {"calibrateArea": {"parent": "C"}}})", "{}");
        QVERIFY(bare.isRead);
        QCOMPARE(bare.written(), QString("not written"));
        const auto whyNot = [&](const char* parent, const char* instead) {
            const Load lanes(fixture["template"].toStyledText().replace(parent, instead), "{}");
            lanes.scene().addDataInfo(lanes.scene().newDataInfo())->setValue("N", 1);
            Value config;
            QString why;
            return lanes.parser.writeData(config, why) ? QString() : why.section('"', 1);
        };
        QCOMPARE(whyNot("L[]", ""), QString(R"(" for what is set under "lanes".)"));
        QCOMPARE(whyNot("R[]", "L.R[]"), QString(R"(L.R[]" for what is set under "rules".)"));
    }

    void examplesAndTheirMutations_data()
    {
        QTest::addColumn<QString>("folder");
        for (const QString& name : ExampleFiles::names())
            QTest::newRow(qPrintable(name)) << ExampleFiles::folder(name);
    }

    /// An example stays as it is. One value after another of an example's documents becomes
    /// something else: whatever is read of that and written stays as it is from then on.
    void examplesAndTheirMutations()
    {
        QFETCH(QString, folder);
        Value templateDocument = json(ExampleFiles::contentOf(folder + "template.json"));
        Value config = json(ExampleFiles::contentOf(folder + "config.json"));
        const QString templateText = templateDocument.toStyledText();
        const QString configText = config.toStyledText();
        const Load example(templateText, configText);
        QVERIFY(example.isRead);
        QCOMPARE(json(example.written()), config);
        QCOMPARE(example.parser.notices(), QStringList());
        for (const auto& scene : example.parser.getAllData()) {
            QString message;
            QVERIFY2(scene->checkData(message), qPrintable(message));
            if (const DrawItem* figure = scene->getDrawScene()->getFirstDrawItem())
                QCOMPARE(figure->label(),
                         scene->getTemplate()->figureItem(figure->drawType())->caption());
        }
        int tried = 0;
        QSet<QString> stable; // many mutations are read, and so written, alike
        const auto expectStable = [&](const QString& description, const QString& document) {
            ++tried;
            const Load load(description, document);
            const QString written = load.written();
            if (!load.isRead || written == "not written" || stable.contains(description + written))
                return;
            QCOMPARE(roundTrip(description, written), written);
            stable.insert(description + written);
        };
        mutate(config, [&] { expectStable(templateText, config.toStyledText()); });
        mutate(templateDocument["configTemplate"],
               [&] { expectStable(templateDocument.toStyledText(), configText); });
        QVERIFY(tried > 500);
    }
};

QTEST_MAIN(TstConfig)
#include "tst_config.moc"
