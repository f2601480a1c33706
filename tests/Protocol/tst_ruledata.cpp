#include "Protocol/calibration/calibrateareatemplate.h"
#include "Protocol/controlrow.h"
#include "Protocol/figuremaker.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/scenedata.h"
#include "Protocol/validity.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "tests/support/fixtures.h"
#include "tests/support/rulestest.h"

using kql::Json::Value;

namespace
{

class FakeRow : public QObject, public ControlRow
{
public:
    QVariant value() const override { return shown; }
    bool isRowVisible() const override { return visible; }
    const QObject* rowObject() const override { return this; }

    QVariant shown;
    bool visible = true;
};

/// A rules scene that tests fill item by item.
class Scene
{
public:
    explicit Scene(CountRange count = {0, kAnyCount})
    {
        data.setSceneType(SceneType::Rules);
        data.setTemplate(std::make_unique<DataTemplate>());
        data.getTemplate()->setCountRange(count);
    }

    RuleProtocolItem* add(const QString& key, FacadeType facade,
                          ValueType type = ValueType::None) const
    {
        auto item = std::make_unique<RuleProtocolItem>();
        item->setKey(key);
        item->setCaption(key.toUpper());
        item->setFacade(facade);
        item->setValueType(type);
        item->setCountRange({1, 1});
        return data.getTemplate()->addItem(std::move(item));
    }

    RuleDataInfo* addEntry() { return data.addDataInfo(data.newDataInfo()); }

    DrawItem* draw(const RuleDataInfo* entry, const RuleProtocolItem* item, bool finished = true,
                   int parentId = -1) const
    {
        DrawItem* const figure = data.getDrawScene()->addItem(
            FigureMaker::make(*data.getTemplate(), *item, *entry,
                              data.getTemplate()->forbiddenArea(*item)),
            parentId);
        figure->setLabel("figure");
        figure->figure()->setFinished(finished);
        return figure;
    }

    /// What checkData says; empty when it has nothing to say.
    QString complaint() const
    {
        QString message;
        const bool ok = data.checkData(message);
        return ok == message.isEmpty() ? message : QString("result and message differ");
    }

    /// Where that is: the keys, and the position of the figure from 1.
    QString place() const
    {
        const CheckFault fault = data.firstFault().value_or(CheckFault());
        const auto figures = data.getDrawScene()->getItemList(BaseDrawType::None, -1);
        const int figure = figures.indexOf(data.getDrawScene()->findItem(fault.itemId)) + 1;
        return QString("%1 %2 %3").arg(fault.key, fault.comparedKey).arg(figure).simplified();
    }

    RuleData data;
};

} // namespace

class TstRuleData : public RulesTest
{
    Q_OBJECT

private slots:
    void ranges()
    {
        Scene scene;
        RuleProtocolItem* const item =
            scene.add("span", FacadeType::NumericalInterval, ValueType::ArrayInt);
        scene.addEntry();
        auto row = std::make_unique<FakeRow>();
        item->setRow(row.get());
        row->shown = -1; // of a row that shows no range
        QCOMPARE(scene.complaint(), QString());
        row->shown = QSize(-1, -1);
        QCOMPARE(scene.complaint(), QString("SPAN:The minimum value cannot be empty."));
        row->visible = false;
        QCOMPARE(scene.complaint(), QString());
        row->visible = true;
        row.reset();
        QCOMPARE(scene.complaint(), QString());
    }

    void counts()
    {
        Scene scene({1, 1});
        scene.data.setRuleFucTitle("%1 Area");
        QCOMPARE(scene.complaint(), QString("Please add 1 %1 Area."));
        QCOMPARE(scene.place(), QString("0"));
        RuleProtocolItem* const item = scene.add("zone", FacadeType::Region);
        const RuleDataInfo* const entry = scene.addEntry();
        const auto said = [&](CountRange range) {
            item->setCountRange(range);
            return scene.complaint();
        };
        QCOMPARE(said({1, 1}), QString("Please draw 1 ZONE."));
        QCOMPARE(scene.place(), QString("zone 0"));
        DrawItem* const first = scene.draw(entry, item, false);
        QCOMPARE(said({1, 1}), QString("Please finish drawing figure."));
        QCOMPARE(scene.place(), QString("zone 1"));
        first->figure()->setFinished(true);
        QCOMPARE(said({1, 1}), QString());
        scene.draw(entry, item, false);
        QCOMPARE(said({1, 1}), QString("Please draw 1 ZONE."));
        QCOMPARE(scene.place(), QString("zone 2"));
        QCOMPARE(said({3, 4}), QString("Please draw 3-4 ZONE."));
        QCOMPARE(said({0, 0}), QString());
        QCOMPARE(said({2, 2}), QString("Please finish drawing figure."));
    }

    void crossChecks_data() { Fixtures::addRows("crosschecks.json"); }

    void crossChecks()
    {
        QFETCH(const Value, fixture);
        const std::pair<const char*, const char*> reasons[] = {{">", "greater than"},
                                                               {"<", "less than"},
                                                               {"==", "equal"},
                                                               {">=", "greater than or equal"},
                                                               {"<=", "less than or equal"}};
        for (const auto& [sign, reason] : reasons) {
            Scene scene;
            for (const char* key : {"a", "b"})
                scene.add(key, FacadeType::InputBoxNumber);
            DataTemplate& items = *scene.data.getTemplate();
            items.addCheckRule({"a", "unknown", CheckRuleOperatorType::Equal});
            items.addCheckRule({"a", "b", RuleParser::parseToOperatorType(sign)});
            RuleDataInfo* const entry = scene.addEntry();
            entry->setValue("a", Fixtures::valueOf(fixture["first"]));
            entry->setValue("b", Fixtures::valueOf(fixture["second"]));
            const bool holds = Fixtures::textsOf(fixture["holds"]).contains(sign);
            const QString text = QString("A must be %1 to B").arg(reason);
            QCOMPARE(scene.complaint(), holds ? QString() : text);
            QCOMPARE(scene.place(), QString(holds ? "0" : "a b 0"));
            for (const char* key : {"a", "b"}) { // of what does not apply nothing is told
                entry->setValid(key, false);
                QCOMPARE(scene.complaint(), QString());
                entry->setValid(key, true);
            }
        }
    }

    void entries()
    {
        QVERIFY(!RuleData().newDataInfo());
        Scene scene;
        scene.add("zone", FacadeType::Region);
        scene.add("number", FacadeType::InputBoxNumber)->setDefaultValue(4);
        const int ids[] = {scene.addEntry()->id(), scene.addEntry()->id(), scene.addEntry()->id()};
        RuleData& data = scene.data;
        QVERIFY(!data.getDataInfo(ids[1])->hasValue("zone"));
        QCOMPARE(data.getDataInfo(ids[1])->value("number"), QVariant(4));
        QVERIFY(data.getDataInfo(ids[1])->isEnabled());
        RuleDataInfo& changed = *data.getDataInfo(ids[1]);
        changed.setValue("number", 7);
        changed.setValue("more", 1);
        changed.setValid("more", false);
        const RuleDataInfo copy = changed;
        changed.setValue("number", QVariant());
        QVERIFY_BOTH(changed.hasValue("number"), !changed.value("number").isValid());
        QCOMPARE(copy.value("number"), QVariant(7));
        QVERIFY_BOTH(!copy.isValid("more"), copy.isValid("number"));
        const RuleDataInfo& other = *data.getDataInfo(ids[2]);
        QCOMPARE(other.value("number"), QVariant(4));
        QVERIFY_BOTH(!other.hasValue("more"), other.isValid("more"));
        data.setSelectedDataId(ids[0]);
        data.removeDataInfo(ids[0]);
        QCOMPARE(data.getSelectedDataId(), ids[0]);
        QVERIFY_BOTH(!data.selectedDataInfo(), !data.getDataInfo(ids[0]));
        QCOMPARE(data.indexOf(ids[2]), 1);
        data.removeDataInfo(ids[0]);
        QCOMPARE(data.getSelectedDataId(), 0);
    }

    void copies()
    {
        Scene scene({1, 3});
        RuleProtocolItem* const zone = scene.add("zone", FacadeType::Region);
        RuleProtocolItem* const inner = scene.add("inner", FacadeType::Rect);
        inner->setLinkedItem(zone);
        FakeRow row;
        zone->setRow(&row);
        RuleDataInfo* const entry = scene.addEntry();
        entry->setName("gate");
        const DrawItem* const parent = scene.draw(entry, zone);
        scene.draw(entry, inner, true, parent->itemId());
        scene.data.setSelectedDataId(entry->id());
        scene.data.getDrawScene()->setCanvasSize(50, 40);
        RuleData copy(scene.data);
        RuleData assigned;
        assigned = copy;
        assigned = *&assigned;
        entry->setName("changed");
        scene.data.getDrawScene()->removeItem(parent->itemId());
        for (RuleData* const data : {&copy, &assigned}) {
            const auto& items = data->getTemplate()->items();
            QVERIFY_BOTH(items[0].get() != zone, !items[0]->row());
            QCOMPARE(items[1]->linkedItem(), items[0].get());
            QCOMPARE(data->selectedDataInfo()->name(), QString("gate"));
            QCOMPARE(data->getDrawScene()->canvasSize(), QSize(50, 40));
            const auto figures = data->getDrawScene()->getItemListByDataId(entry->id());
            QCOMPARE(figures.size(), 2);
            QCOMPARE(figures[1]->parent(), figures[0]);
            QCOMPARE(figures[1]->templateKey(), QString("inner"));
            QString message;
            QVERIFY2(data->checkData(message), qPrintable(message));
        }
    }

    void madeFigures()
    {
        CalibrateAreaData area;
        CalibrateAreaTemplate& items = *CalibrateAreaTemplate::of(area);
        const std::pair<const char*, EdgeLabelMode> modes[] = {
            {"", EdgeLabelMode::Name},
            {"Lane", EdgeLabelMode::LengthAndWidth},
            {"Scene", EdgeLabelMode::Scene}};
        items.setAreaPointCount({4, 5});
        for (const auto& [method, mode] : modes) {
            items.setMethod(method);
            const auto made = FigureMaker::make(items, *items.regionItem(), RuleDataInfo(7),
                                                DrawItemForbidenAreaType::ForbidenSelf);
            QCOMPARE(made->figure()->edgeLabelMode(), mode);
            QCOMPARE(made->figure()->minimumPointCount(), 4);
            QCOMPARE(made->figure()->maximumPointCount(), 5);
        }
    }

    void validity_data() { Fixtures::addRows("validity.json"); }

    void validity()
    {
        QFETCH(const Value, fixture);
        const Scene scene;
        if (!fixture["facade"].isNull())
            scene.add("controller", RuleParser::parseToFacadeType(fixture["facade"].asString()),
                      RuleParser::parseToValueType(fixture["type"].asString()));
        scene.add("key", FacadeType::InputBoxNumber)
            ->addValidity({"controller", Fixtures::textsOf(fixture["values"])});
        RuleDataInfo entry;
        entry.setValue("controller", Fixtures::valueOf(fixture["value"]));
        Validity::update(*scene.data.getTemplate(), entry);
        QCOMPARE(entry.isValid("key"), fixture["applies"].asBool());
    }

    void validityChains()
    {
        Scene scene;
        RuleProtocolItem* const top = scene.add("top", FacadeType::RadioButton);
        RuleProtocolItem* const middle = scene.add("middle", FacadeType::RadioButton);
        RuleProtocolItem* const low = scene.add("low", FacadeType::RadioButton, ValueType::Object);
        scene.add("other", FacadeType::RadioButton, ValueType::Object);
        middle->setDefaultValue("on");
        middle->addValidity({"top", {"on"}});
        low->addValidity({"middle", {"on"}});
        DataTemplate& items = *scene.data.getTemplate();
        items.addCheckRule({"low", "other", CheckRuleOperatorType::Equal});
        RuleDataInfo* const entry = scene.addEntry();
        const auto hides = [&](const RuleProtocolItem* item) {
            return Validity::hiddenItems(items, *entry).contains(item);
        };
        QVERIFY_BOTH(!entry->isValid("middle"), entry->isValid("low"));
        entry->setValue("low", R"({"a": 1, "b": 2})");
        entry->setValue("other", "{}");
        QVERIFY_BOTH(hides(low), !hides(top));
        QCOMPARE(scene.complaint(), QString()); // about a row that nobody sees
        entry->setValue("top", "on");
        QVERIFY_BOTH(!hides(low), !scene.complaint().isEmpty());
        entry->setValue("other", R"({"b": 2.0, "a": 1})");
        QCOMPARE(scene.complaint(), QString());
        top->addValidity({"low", {"5"}});
        QVERIFY(hides(low));
        entry->setValue("low", 5);
        QVERIFY(!hides(low));
    }
};

QTEST_MAIN(TstRuleData)
#include "tst_ruledata.moc"
