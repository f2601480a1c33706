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

/// One rules control with the key "a", of that value type and with these details.
QString oneControl(const QString& type, const QString& details)
{
    return rules(QStringLiteral(R"("parent": "R[]", "controls": [
                     {"key": "a", "protocol": {"name": "A", "type": "%1"}}])")
                     .arg(type),
                 QStringLiteral(R"({"a": %1})").arg(details));
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

    const RuleProtocolItem* parseItem(const QString& text)
    {
        const RuleData* const data = parse(text);
        return data ? data->getTemplate()->findItem(QString("a")) : nullptr;
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
        const RuleProtocolItem* const item =
            parseItem(oneControl(fixture["type"].asString(), fixture["details"].toStyledText()));
        QVERIFY(item);
        QVERIFY(item->isControl());
        const QVariant expected = Fixtures::valueOf(fixture["default"]);
        const QVariant found = m_parser->getData(SceneType::Rules)->newDataInfo()->value("a");
        QCOMPARE(found.userType(), expected.userType());
        QCOMPARE(found, expected);
    }

    void details()
    {
        const RuleProtocolItem* item = parseItem(oneControl("int", R"({"describe": "Dwell",
            "facade": "inputBoxNumber", "range": [1, 1e12], "units": "s", "enumeration": [{}]})"));
        QCOMPARE(item->caption() + item->units(), QString("Dwells"));
        QCOMPARE(item->rangeMinimum(), QVariant(1));
        QCOMPARE(item->rangeMaximum(), QVariant(2147483647));
        QVERIFY(item->enumeration().isEmpty());
        item = parseItem(oneControl("int", R"({"facade": "inputBoxNumber", "range": null})"));
        QVERIFY_BOTH(!item->rangeMinimum().isValid(), !item->rangeMaximum().isValid());
        item = parseItem(oneControl("string", R"({"facade": "checkbox", "units": "s",
            "enumeration": [{"name": "All", "value": "all", "isAll": true, "describe": "tip"},
                            {"name": "Obj", "value": {"k": 1}}, {"name": "Num", "value": 5}]})"));
        const QList<EnumOption>& options = item->enumeration();
        QCOMPARE(options.size(), 3);
        QVERIFY_BOTH(item->hasAllChoice(), options[0].isAll);
        QVERIFY(!options[1].isAll);
        QCOMPARE(options[0].text + options[0].value + options[0].description, QString("Allalltip"));
        QCOMPARE(Mailbox::json(options[1].value), Mailbox::json(R"({"k": 1})"));
        QCOMPARE(options[2].value + item->units(), QString());
    }

    /// Controls of one key have the same details; a default is of each one's own type.
    void sharedDetails()
    {
        const auto described = [](const RuleProtocolItem& item) {
            const CountRange points = item.pointCount();
            return QVariantList{item.caption(),
                                int(item.facade()),
                                item.units(),
                                item.rangeMinimum(),
                                item.rangeMaximum(),
                                item.defaultValue(),
                                item.hasAllChoice(),
                                item.enumeration().size(),
                                item.countRange().max,
                                points.min,
                                points.max};
        };
        for (const char* kind : {R"("inputBoxNumber", "range": [2, 9], "default": 4, "units": "s")",
                                 R"("checkbox", "default": "x", "enumeration": [{"isAll": true}])",
                                 R"("region", "range": [4, 7])"}) {
            const QString control = R"({"key": "a", "protocol": {"type": "%1"}})";
            const QString controls =
                control.arg("int") + "," + control.arg("int") + "," + control.arg("string");
            const RuleData* data =
                parse(rules(R"("parent": "R", "controls": [)" + controls + "]",
                            R"({"a": {"describe": "A", "facade": )" + QString(kind) + "}}"));
            const auto& items = data->getTemplate()->items();
            QVariantList expected = described(*items[0]);
            QVERIFY_BOTH(expected.first() == "A", expected[1] != int(FacadeType::None));
            QCOMPARE(described(*items[1]), expected);
            if (items[0]->facade() == FacadeType::InputBoxNumber)
                expected[5] = QString(); // no text
            QCOMPARE(described(*items[2]), expected);
        }
    }

    void figurePoints()
    {
        using Limits = std::optional<CountRange>;
        const auto check = [this](const char* facade, const char* range, CountRange points,
                                  const Limits& limits) {
            const QString details =
                QStringLiteral(R"({"facade": "%1", "range": %2})").arg(facade, range);
            const RuleProtocolItem* const item = parseItem(oneControl("point", details));
            QVERIFY2(item->isFigure(), facade);
            QVERIFY2(item->countRange() == (CountRange{1, 1}), facade);
            QVERIFY2(item->pointCount() == points, qPrintable(details));
            QVERIFY2(item->figurePointLimits() == limits, qPrintable(details));
        };
        check("region", "null", {-1, -1}, CountRange{3, kAnyCount});
        check("line", "4", {0, 0}, {});
        check("line", "null", {-1, -1}, CountRange{2, kAnyCount});
        check("line", "[2, 5]", {2, 5}, CountRange{2, 5});
        check("rect", "null", {-1, -1}, {});
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
