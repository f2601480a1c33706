#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/spelling.h"
#include "draw/figurekinds.h"
#include "tests/support/fixtures.h"
#include "tests/support/mailbox.h"
#include "tests/support/rulestest.h"

using kql::Json::Value;

namespace
{

QString document(const QString& name)
{
    return QString::fromUtf8(Fixtures::contentOf("templates/" + name));
}

QString description(const QString& sections, const QString& configItems = QString("{}"))
{
    return QStringLiteral(R"({"configDescription": {%1}, "configItems": %2})")
        .arg(sections, configItems);
}

QString rules(const QString& members, const QString& configItems = QString("{}"))
{
    return description(QStringLiteral(R"("ruleDescription": {"rules": {%1}})").arg(members),
                       configItems);
}

/// Rules controls of the key "a", of these value types and with these details.
QString controls(const QStringList& types, const QString& details)
{
    QStringList all;
    for (const QString& type : types)
        all.append(QString(R"({"key": "a", "protocol": {"name": "A", "type": "%1"}})").arg(type));
    return rules(QString(R"("parent": "R[]", "controls": [%1])").arg(all.join(',')),
                 QString(R"({"a": %1})").arg(details));
}

QString rangeText(CountRange range)
{
    return QString("%1..%2").arg(range.min).arg(
        range.max == kAnyCount ? QString("any") : QString::number(range.max));
}

/// What an item was given beside its place.
Value described(const RuleProtocolItem& item)
{
    Value found;
    found["caption"] = item.caption();
    found["units"] = item.units();
    found["facade"] = int(item.facade());
    found["range"] = item.rangeMinimum().toString() + ".." + item.rangeMaximum().toString();
    found["default"] = item.defaultValue().toString();
    found["hasAllChoice"] = item.hasAllChoice();
    for (const EnumOption& option : item.enumeration())
        found["options"].append(QString("%1=%2 %3%4")
                                    .arg(option.text, option.value.simplified(), option.description,
                                         option.isAll ? " (all)" : ""));
    found["isFigure"] = item.isFigure();
    found["figures"] = rangeText(item.countRange());
    found["points"] = rangeText(item.pointCount());
    const auto limits = item.figurePointLimits();
    found["limits"] = limits ? rangeText(*limits) : QString("its kind's");
    return found;
}

} // namespace

class TstTemplate : public RulesTest
{
    Q_OBJECT

private:
    /// The scene of that type in @p text; the parser lives until the next call.
    RuleData* parse(const QString& text, SceneType type = SceneType::Rules)
    {
        m_parser = std::make_unique<RuleParser>();
        return m_parser->parseTemplate(text) && m_parser->checkTemplate() ? m_parser->getData(type)
                                                                          : nullptr;
    }

    std::unique_ptr<RuleParser> m_parser;

private slots:
    void refusesOtherDocuments()
    {
        RuleParser parser;
        QVERIFY(parser.parseTemplate(description(R"("lanes": {})")));
        QCOMPARE(parser.getAllData().size(), std::size_t(1));
        for (const char* text : {"", "{", "{}", "[1]", "3", R"({"configdescription": {}})"}) {
            QVERIFY2(!parser.parseTemplate(text), text);
            QVERIFY2(parser.getAllData().empty(), text);
        }
        QVERIFY(parser.parseTemplate(description({})));
        QVERIFY_BOTH(parser.getAllData().empty(), !parser.getData(SceneType::Lanes));
        QVERIFY(parser.parseTemplate(description(R"("calibrateArea": null, "lanes": null,
                                                    "ruleDescription": {"rules": null})")));
        QVERIFY(parser.getAllData().empty());
    }

    void facadesDrawTheKindsThereAre()
    {
        QList<BaseDrawType> drawn{BaseDrawType::Ruler}; // in no template
        for (int facade = 0; facade < 110; ++facade) {
            const BaseDrawType kind = Spelling::toDrawType(FacadeType(facade));
            if (kind == BaseDrawType::None)
                continue;
            QVERIFY2(FigureKind::find(kind), qPrintable(QString::number(facade)));
            drawn.append(kind);
        }
        for (int kind = 0; kind < 20; ++kind)
            QVERIFY2(!FigureKind::find(BaseDrawType(kind)) || drawn.contains(BaseDrawType(kind)),
                     qPrintable(QString::number(kind)));
    }

    void toleratesOtherKinds()
    {
        const QStringList kinds{"1", "-2.5e300", "true", "\"x\"", "[]", "{}", "[[], {}, null, 7]"};
        const QString whole = document("otherkinds.json");
        for (const QString& kind : kinds) {
            QVERIFY2(parse(QString(whole).replace("\"%1\"", kind)), qPrintable(kind));
            QCOMPARE(m_parser->getAllData().size(), std::size_t(6));
            QCOMPARE(m_parser->getAllData()[2]->getTemplate()->countRange(),
                     kind.startsWith("[[") ? (CountRange{0, 0}) : (CountRange{0, kAnyCount}));
            for (const auto& data : m_parser->getAllData())
                QVERIFY(data->newDataInfo());
        }
    }

    void controlDescription()
    {
        const RuleData* const data = parse(document("controls.json"));
        const auto& items = data->getTemplate()->items();
        QCOMPARE(items.size(), std::size_t(3));
        QCOMPARE(items[0]->path().text(), QString("A.B[]"));
        QCOMPARE(items[0]->index(), 1);
        QCOMPARE(items[1]->index(), -1);
        const QStringList values[] = {{"x"}, {"y", "z"}, {}};
        for (std::size_t i = 0; i < items.size(); ++i)
            QCOMPARE(items[i]->validity().first().values, values[i]);
    }

    void dependenciesComeFromLaterControls()
    {
        const auto check = [this](const QString& controls, const QList<QStringList>& expected) {
            QList<QStringList> all;
            const RuleData* const data =
                parse(rules(R"("parent": "R", "controls": [)" + controls + "]"));
            for (const auto& item : data->getTemplate()->items())
                all.append(item->dependencies());
            QCOMPARE(all, expected);
        };
        const QString two = R"({"depend": [{"key": "a"}, {"key": "b"}]})";
        check(two, {{"a"}});
        check(two + ", {}", {{"a"}, {}});
        check(two + "," + two, {{"a", "b"}, {"a", "b"}});
    }

    void defaults_data() { Fixtures::addRows("defaults.json"); }

    void defaults()
    {
        QFETCH(const Value, fixture);
        RuleData* const data =
            parse(controls({fixture["type"].asString()}, fixture["details"].toStyledText()));
        QVERIFY(data->getTemplate()->findItem(QString("a"))->isControl());
        const QVariant expected = Fixtures::valueOf(fixture["default"]);
        const QVariant found = data->newDataInfo()->value("a");
        QCOMPARE(found.userType(), expected.userType());
        QCOMPARE(found, expected);
    }

    void details_data() { Fixtures::addRows("details.json"); }

    /// Controls of one key have the same details; a default is of each one's own type.
    void details()
    {
        QFETCH(const Value, fixture);
        const QString type = fixture["type"].asString();
        const auto& items =
            parse(controls({type, type, "string"}, fixture["details"].toStyledText()))
                ->getTemplate()
                ->items();
        const Value found = described(*items[0]);
        Value asked;
        for (const QString& name : fixture["item"].memberNames())
            asked[name.toStdString()] = found[name.toStdString()];
        QCOMPARE(asked.toStyledText(), fixture["item"].toStyledText());
        QCOMPARE(described(*items[1]).toStyledText(), found.toStyledText());
        Value text = described(*items[2]);
        QCOMPARE(text["default"].asString(), fixture["defaultOfText"].asString());
        text["default"] = found["default"];
        QCOMPARE(text.toStyledText(), found.toStyledText());
    }

    void lanesTakeRulesOver()
    {
        const QString sections = document("lanesandrules.json");
        const auto checks = [](const RuleData* data) {
            return data->getTemplate()->checkRules().size();
        };
        const RuleData* const apart = parse(sections);
        QCOMPARE(int(checks(apart)), 1);
        QCOMPARE(int(checks(m_parser->getData(SceneType::Lanes))), 0);
        const RuleData* const joined =
            parse(QString(sections).replace("\"key\": \"y\"", "\"key\": \"ruleLaneNumber\""),
                  SceneType::Lanes);
        QVERIFY(!m_parser->getData(SceneType::Rules));
        QCOMPARE(int(checks(joined)), 1);
    }

    void paths_data() { Fixtures::addRows("paths/read.json"); }

    void paths()
    {
        QFETCH(const Value, fixture);
        const Value root = Mailbox::json(R"({"A": [], "B": [{"C": [1, 2]}, 0],
                                             "D": {"": 4, "E": null}, "F[]": 5})");
        const QString path = QString(QTest::currentDataTag()).section(' ', 1);
        const Value* const value = JsonPath(path).readPath(root);
        QCOMPARE(value != nullptr, fixture.isMember("found"));
        if (value)
            QCOMPARE(*value, fixture["found"]);
    }

    void createsPaths_data() { Fixtures::addRows("paths/made.json"); }

    void createsPaths()
    {
        QFETCH(const Value, fixture);
        Value root = fixture["before"];
        const JsonPath path(fixture["path"].asString());
        const Value* const made = path.create(root);
        QCOMPARE(root, fixture["after"]);
        QCOMPARE(made, path.find(static_cast<const Value&>(root)));
        QVERIFY(!JsonPath().readPath(root));
    }
};

QTEST_MAIN(TstTemplate)
#include "tst_template.moc"
