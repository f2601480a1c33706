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
#include "host/json/reader.h"
#include "tests/support/rulestest.h"

#include <QDir>
#include <functional>

using kql::Json::Value;

namespace
{

using Texts = QStringList;

Value json(const QString& text)
{
    Value value;
    kql::Json::Reader reader;
    if (!reader.parse(text, value))
        qWarning("not JSON: %s in %s", qPrintable(reader.errorText()), qPrintable(text));
    return value;
}

QString text(const Value& value)
{
    return value.toStyledText().simplified();
}

/// A section of controls "path|type|index|facade" (the last two may be left out), keyed by
/// their paths, and their details.
struct Section {
    Section(const QString& name, const QString& parent, const Texts& controls)
    {
        Texts described;
        Texts details;
        for (const QString& control : controls) {
            const Texts parts = control.split(QLatin1Char('|'));
            const QString index = parts.value(2).isEmpty() ? "-1" : parts[2];
            const QString facade = parts.value(3).isEmpty() ? "inputBoxNumber" : parts[3];
            described += QString(R"({"key": "%1", "protocol": {"name": "%1", "type": "%2",
                                     "index": %3}})")
                             .arg(parts[0], parts[1], index);
            details += QString(R"("%1": {"describe": "%1", "facade": "%2"})").arg(parts[0], facade);
        }
        description = QString(R"("%1": {"parent": "%2", "controls": [%3]})")
                          .arg(name, parent, described.join(QLatin1Char(',')));
        items = details.join(QLatin1Char(','));
    }

    QString description;
    QString items;
};

QString makeTemplate(const QString& sections, const QString& items, const QString& skeleton)
{
    return QString(R"({"configDescription": {%1}, "configItems": {%2}, "configTemplate": %3})")
        .arg(sections, items, skeleton);
}

QString rules(const Texts& controls, const QString& skeleton, const char* section = "rules",
              const char* parent = "R[]")
{
    const Section part(section, parent, controls);
    return makeTemplate(R"("ruleDescription": {)" + part.description + "}", part.items, skeleton);
}

/// Lanes under "L" with rules of number "N" and name under "R".
QString laneRules(const QString& skeleton)
{
    const Section part{"rules", "R[]", {"N|int", "Line[]|point||line"}};
    const QString handed =
        QString(R"("lanes": {"parent": "L[]"}, "ruleDescription": {%1})").arg(part.description);
    return makeTemplate(QString(handed).replace(R"("key": "N")", R"("key": "ruleLaneNumber")"),
                        part.items, skeleton);
}

const QString kLaneSkeleton = R"({"L": [{"Number": 0}], "R": [{"N": 0, "Line": []}]})";

QString detection(const QString& skeleton)
{
    return rules({"A[]|point||region", "B|int"}, skeleton, "detectArea", "D");
}

struct Load {
    RuleParser parser;

    Load(const QString& templateText, const QString& config)
    {
        isRead = parser.parseTemplate(templateText) && parser.readData(config);
    }
    RuleData& scene() const { return *parser.getAllData().front(); }
    RuleDataInfo& entry(int position = 0) const
    {
        return *scene().getAllData()[static_cast<std::size_t>(position)];
    }
    RuleDataInfo& addEntry() const { return *scene().addDataInfo(scene().newDataInfo()); }
    /// Draws a figure of the template's item at @p item for @p entry.
    void draw(int item, const RuleDataInfo& entry, const QVector<QPoint>& points) const
    {
        const auto& protocolItem = scene().getTemplate()->items()[static_cast<std::size_t>(item)];
        auto drawn = FigureMaker::make(scene(), *protocolItem, entry.id(),
                                       DrawItemForbidenAreaType::ForbidenNone);
        for (const QPoint& point : points)
            drawn->figure()->appendPoint(point);
        drawn->figure()->setFinished(true);
        scene().getDrawScene()->addItem(std::move(drawn), -1);
    }
    QString written() const
    {
        Value config;
        return parser.writeData(config) ? text(config) : QStringLiteral("not written");
    }

    bool isRead = false;
};

QString roundTrip(const QString& templateText, const QString& config)
{
    return Load(templateText, config).written();
}

Value file(const QString& path)
{
    QFile source(path);
    return json(source.open(QIODevice::ReadOnly) ? QString::fromUtf8(source.readAll()) : QString());
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
    void values()
    {
        const auto check = [](const char* name, const char* type, int index, const char* found,
                              const QVariant& value, const char* target, const char* written) {
            RuleProtocolItem item;
            item.setValueType(RuleParser::parseToValueType(type));
            item.setIndex(index);
            const Value source = json(found);
            const QVariant read = ValueConversion::parseJsonToValue(source, item);
            QVERIFY2(read == value && read.userType() == value.userType(), name);
            Value place = json(target);
            ValueConversion::toJson(read, item, place, &source);
            QVERIFY2(text(place) == text(json(written)), name);

            const QString before = text(place);
            const bool isCleared = item.valueType() == ValueType::String && place.isArray();
            ValueConversion::toJson(QVariant(), item, place);
            QCOMPARE(text(place), isCleared ? QStringLiteral("[]") : before);
        };
        check("texts", "string", -1, R"(["a", "b"])", Texts{"a", "b"}, R"(["x"])", R"(["a", "b"])");
        check("texts into a text", "string", -1, R"(["a", "b"])", Texts{"a", "b"}, R"("")",
              R"(["a", "b"])");
        check("text into texts", "string", -1, R"("a")", "a", R"(["x", "y"])", R"(["a"])");
        check("no texts", "string", -1, "[]", QVariant(), R"(["x"])", "[]");
        check("number as bool", "bool", -1, "0.5", true, "false", "true");
        check("int of ints", "int", 0, "[7, 8]", 7, "[1, 2]", "[7, 2]");
        check("int beyond ints", "int", 2, "[7, 8]", QVariant(), "[1, 2]", "[1, 2]");
        check("whole double", "int", -1, "7.0", 7, "0", "7");
        check("fraction as int", "int", -1, "7.9", QVariant(), "0", "0");
        check("numbers as texts", "string", -1, "[12, 5.5, true]", Texts{"12", "5.5", "true"}, "[]",
              R"(["12", "5.5", "true"])");
        check("null", "int", -1, "null", QVariant(), "4", "4");
        check("float kept a float", "float", -1, "7.0", 7.0, "2", "7.0");
        check("open interval", "array int", -1, R"(["x", 7.0])", QSize(-1, 7), "[5, 5]", "[0, 7]");
        check("longer interval", "array int", -1, "[3, 9, 1]", QSize(3, 9), "[0, 0, 4]",
              "[3, 9, 4]");
        check("interval of intervals", "array int", 1, "[[1, 2], [3, 4]]", QSize(3, 4),
              "[0, [0, 0]]", "[0, [3, 4]]");
        check("object", "object", -1, R"({"b": 1, "a": [2.0]})",
              json(R"({"b": 1, "a": [2.0]})").toStyledText(), "0", R"({"b": 1, "a": [2.0]})");
        check("unknown", "array", -1, "[1, 2]", QVariant(), "5", "5");
    }

    void documents()
    {
        const auto row = [](const char* name, const QString& templateText, const char* config,
                            const char* expected = nullptr) {
            const QString written = roundTrip(templateText, config);
            QVERIFY2(json(written) == json(expected ? expected : config),
                     qPrintable(name + (": " + written)));
            QCOMPARE(roundTrip(templateText, written), written);
        };
        const Texts items = {"A|int", "B.C|string", "P[]|point||region"};
        const QString ruled =
            rules(items, R"({"R": [{"X": 1, "A": 5, "B": {"C": "d"}, "P": [[1, 1]]}],
                                               "Y": 2})");
        row("rules", ruled, R"({"R": [
            {"X": 1, "A": 6, "B": {"C": "e"}, "P": [[1, 2], [3, 4]], "Name": "n", "Enable": false},
            {"X": 1, "A": 7, "B": {"C": ""}, "P": [], "Name": "", "Enable": true}], "Y": 2})",
            R"({"R": [
            {"X": 1, "A": 6, "B": {"C": "e"}, "P": [[1, 2], [3, 4]], "Name": "n", "Enable": false},
            {"X": 1, "A": 7, "B": {"C": ""}, "P": [], "Name": "Rule2", "Enable": true}], "Y": 2})");
        row("skeleton's members win", ruled,
            R"({"R": [null, {"X": 9, "B": 4}, 3, {"P": 5}], "Y": 3})",
            R"({"R": [
            {"X": 1, "A": 5, "B": {"C": "d"}, "P": [[1, 1]], "Name": "Rule1", "Enable": true},
            {"X": 1, "A": 5, "B": {"C": "d"}, "P": [[1, 1]], "Name": "Rule2", "Enable": true}], "Y": 2})");
        for (const char* skeleton : {R"({})", R"({"R": []})", R"({"R": null})", R"({"R": [7]})"}) {
            row(skeleton, rules(items, skeleton),
                R"({"R": [{"A": 6, "B": {"C": "e"}, "P": [[1, 2]], "Name": "n", "Enable": true}]})");
        }
        row("made places",
            rules({"L|string", "I[]|int|1", "J[]|int|0", "V|array int", "S[].T|int"}, "{}"),
            R"({"R": [{"L": ["a"], "I": [null, 5], "J": [6], "V": [7, 8], "S": [{"T": 1}],
                       "Name": "n", "Enable": true}]})");
        row("absent places",
            rules({"L|string", "V|array int", "F|float", "S.T|int"}, R"({"R": [{}]})"),
            R"({"R": [{"L": ["a", "b"], "V": [7, 8], "F": 2, "S": {"T": 4}, "Name": "n", "Enable": true},
                      {"L": [], "V": [7], "Name": "m", "Enable": true}]})",
            R"({"R": [{"L": ["a", "b"], "V": [7, 8], "F": 2, "Name": "n", "Enable": true},
                      {"L": [], "V": [7], "Name": "m", "Enable": true}]})");
        const Texts kinds = {"T|string", "B|bool", "N|int", "F|float", "V|array int", "L[]|string"};
        const QString all = rules(kinds, R"({"R": [{"T": "t", "B": true, "N": 1, "F": 1.5,
                                                    "V": [1, 2], "L": ["Human"]}]})");
        row("what does not fit", all, R"({"R": [{"T": {"a": 1}, "B": "true", "N": "7",
            "F": 9007199254740993, "V": 5, "L": ["a", {}], "Name": ["n"], "Enable": "no"},
            {"T": [], "B": 0, "N": 5000000000, "F": [], "V": [5], "L": [], "Name": "m",
             "Enable": true}, {"T": "", "B": true, "N": 1, "F": 1.5, "V": [0, 5000000000, 7],
             "L": [], "Name": "l", "Enable": true}]})");
        row("what can be converted or is missing", all, R"({"R": [{"T": 12, "N": 5.0,
            "V": [5.0, 6], "Name": 12, "Enable": null}]})",
            R"({"R": [{"T": "12", "B": true, "N": 5, "F": 1.5, "V": [5, 6], "L": ["Human"],
                       "Name": "12", "Enable": true}]})");
        row("shorter lists",
            rules({"I[]|int|1", "S[]|string|0", "S|string|1", "O[]|object|2"},
                  R"({"R": [{"I": [], "S": [], "O": [1]}]})"),
            R"({"R": [{"I": [7, 8], "S": ["a", "b"], "O": [1, 2, {"x": 3}]}]})",
            R"({"R": [{"I": [null, 8], "S": ["a", "b"], "O": [1, null, {"x": 3}],
                       "Name": "Rule1", "Enable": true}]})");
        row("points of other kinds", rules({"P[]|point||region"}, "{}"),
            R"({"R": [{"P": [[1, 2.9], [3], 4, [5, "6"], [-7, 1e300], [8, 9, 10], [-1, 99999]]}]})",
            R"({"R": [{"P": [[1, 2], [-7, 2147483647], [-1, 99999]], "Name": "Rule1", "Enable": true}]})");
        row("global made", rules({"A|int"}, "{}", "global", "H.G"), R"({"H": {"G": {"A": 5}}})");

        row("detection objects", detection(R"({"D": [{"A": [], "X": 1}]})"),
            R"({"D": [{"A": [[1, 1], [2, 2]], "X": 1, "B": 4}, {"A": [], "X": 1}]})");
        row("detection lists", detection(R"({"D": [[]]})"), R"({"D": [[[1, 1], [2, 2]], []]})");
        row("detection bare list", detection(R"({"D": []})"), R"({"D": [[1, 1], [2, 2]]})");
        row("detection object", detection(R"({"D": {"X": 1}})"),
            R"({"D": {"A": [[1, 1]], "X": 1}})", R"({"D": {"X": 1}})");

        row("fight made", makeTemplate(R"("fightCalibrate": {"parent": "F[]"})", {}, "{}"),
            R"({"F": [{"CalibrateArea": {"Area": [[1, 1]], "Rects": [[1, 2], [3, 4]]}},
                      {"CalibrateArea": {"Area": [], "Rects": [[[1, 1]], 5, [[1, 1], [2, 2], [3, 3]]]}}]})",
            R"({"F": [{"CalibrateArea": {"Area": [[1, 1]], "Rects": [[[1, 2], [3, 4]]]}},
                      {"CalibrateArea": {"Area": [], "Rects": []}}]})");

        row("staffs of other kinds",
            makeTemplate(R"("calibrateArea": {"parent": "C[]", "method": "Lane",
                "defaultWidth": 3, "defaultHeight": 9.5})",
                         {}, "{}"),
            R"({"C": [{"Area": [[1, 1], [2, 2], [3, 1]], "Staffs": [{"Type": "Diagonal"}, 4,
                {"Type": "Vertical", "Length": "long", "Start": [5, 6], "End": [7, 8]},
                {"Type": "Vertical", "Length": 2, "Start": [5, 6], "End": [7]},
                {"Type": "Horizontal", "Start": [5, 6], "End": [9, 9]}]}]})",
            R"({"C": [{"Area": [[1, 1], [2, 2], [3, 1]], "Method": "Lane", "Staffs": [
                {"Type": "Vertical", "Length": "long", "Start": [5, 6], "End": [7, 8]},
                {"Type": "Horizontal", "Length": 3.0, "Start": [5, 6], "End": [9, 9]}]}]})");

        const QString lanes = makeTemplate(R"("lanes": {"parent": "L[]"})", QString(),
                                           R"({"L": [{"LeftLineType": "Yellow", "X": 1}]})");
        row("lane drawn right to left", lanes, R"({"L": [{"LeftLineType": "Yellow", "X": 1,
            "LeftLine": [[5, 9], [5, 0]], "RightLine": [[0, 9], [0, 0]]}]})",
            R"({"L": [{"LeftLineType": "Yellow", "X": 1,
            "LeftLine": [[0, 9], [0, 0]], "RightLine": [[5, 9], [5, 0]]}]})");
        row("lane with too few points", lanes,
            R"({"L": [{"LeftLine": [[5, 9]], "RightLine": []}]})",
            R"({"L": [{"LeftLineType": "Yellow", "X": 1}]})");
        row("lanes and rules", laneRules(kLaneSkeleton),
            R"({"L": [{"Number": 1}, {"Number": 2}, {"Number": 3}], "R": [
                {"N": 2, "Line": [[1, 1], [2, 2]], "Name": "b", "Enable": true},
                {"N": 7, "Line": [], "Name": "a", "Enable": false},
                {"N": 3, "Line": [], "Name": "c", "Enable": true},
                {"N": 2, "Name": "spare", "Z": 1}, {"N": 8}]})",
            R"({"L": [{"Number": 1}, {"Number": 2}, {"Number": 3}], "R": [
                {"N": 7, "Line": [], "Name": "a", "Enable": false},
                {"N": 2, "Line": [[1, 1], [2, 2]], "Name": "b", "Enable": true},
                {"N": 3, "Line": [], "Name": "c", "Enable": true},
                {"N": 2, "Name": "spare", "Z": 1}, {"N": 8}]})");
        row("lane without a rule", laneRules(kLaneSkeleton), R"({"L": [{"Number": 4}], "R": []})",
            R"({"L": [{"Number": 4}], "R": [{"N": 4, "Line": [], "Name": "Rule1", "Enable": true}]})");
    }

    /// What the line beside Save tells, sentence for sentence.
    void notices()
    {
        const auto row = [](const QString& templateText, const char* config,
                            const Texts& expected) {
            const QString told = Load(templateText, config).parser.notices().join('\n');
            QVERIFY2(told == expected.join('\n'), qPrintable(told));
        };
        const QString kept = " cannot be shown; it is saved as it was read until it is edited.";
        row(rules({"P[]|point||region", "A.B|int", "T|array||bool", "V|array int", "C|int"},
                  R"({"R": [{"V": 5}], "Y": [1]})"),
            R"({"R": [{"P": [[1, 1]], "A": {"B": 3}, "T": 1, "C": 5.0}], "Y": [1, 2], "Z": {"Q": 0}})",
            {R"(P[] is not saved: the template has no place "P[]" for it.)",
             R"(A.B is not saved: the template has no place "A.B" for it.)",
             R"(T is not saved: it has no type that a row can have.)",
             R"(V is not saved: the template has something else in its place "V".)",
             R"("Y" is not saved: no attribute names it.)",
             R"("Z" is not saved: no attribute names it.)"});
        row(rules({"T|string", "B|bool", "P[]|point||region", "V|array int"},
                  R"({"R": [{"T": "", "B": true, "P": [], "V": [0, 0], "X": {"Y": 1}}]})"),
            R"({"R": [{"T": {}, "Name": "a", "Enable": 1}, 5, {"B": "true", "Name": "b"},
                      {"T": [{}], "Name": "c"}, {"T": {}, "P": [[1, 2.5]], "V": [1, -2, 3], "Name": "d"},
                      {"T": {}, "Name": [], "Enable": {}, "X": {"Y": 2, "Z": 3}, "B": 1, "V": [1]}]})",
            {"What is no entry under \"R[]\" is not saved.", "T (a, c, d, …)" + kept,
             "B (b)" + kept, "\"Name\" (Rule5)" + kept, "\"Enable\" (Rule5)" + kept,
             "V (Rule5)" + kept, "P[] (d) is not saved as it was read.",
             "V (d) is not saved as it was read.",
             "\"X.Y\" (Rule5) is not saved: no attribute names it.",
             "\"X.Z\" (Rule5) is not saved: no attribute names it."});
        row(rules(
                {"V|int|0", "V[]|int|2"},
                R"({"R": [{"V": [1, 2, 3], "X": true}], "Y": {"mode": true, "T": "7", "L": [5]}})"),
            R"({"R": [{"V": [4, 5, 6], "X": 7, "Name": 1, "Enable": 1}],
                "Y": {"mode": 7, "T": 7, "L": 5}})",
            {"\"V[1]\" (1) is not saved: no attribute names it.",
             "\"X\" (1) is not saved: no attribute names it.",
             "\"Y.mode\" is not saved: no attribute names it.",
             "\"Y.T\" is not saved: no attribute names it.",
             "\"Y.L\" is not saved: no attribute names it."});
        row(rules({"A.B|int|-1|none", "C|int"}, R"({"R": [{"C": 1}]})"),
            R"({"R": [{"A": {"B": "x"}, "C": "y", "Name": "a"}]})",
            {"C (a)" + kept, "A.B (a) is not saved as it was read."});
        const Load lost(rules({"A.B|int", "C|int"}, R"({"R": [{"C": 1}]})"),
                        R"({"R": [{"A": {"B": "x"}, "C": "y"}]})");
        for (const bool isLost : {true, false}) {
            const QString said =
                Misfit::explained(lost.scene(), lost.entry(), isLost ? "A.B" : "C");
            QVERIFY2(said.contains("is not saved") == isLost && !said.isEmpty(), qPrintable(said));
        }
        row(rules({"A|int"}, R"({"R": {"A": 1}})"),
            R"({"R": [{"A": 2, "Name": "a"}, {"Name": "b"}]})",
            {"Only a is saved: the template has room for one."});
        row(makeTemplate(R"("lanes": {"parent": "L[]"})", QString(), R"({"L": [{}]})"),
            R"({"L": [{"LeftLine": [[5, 9], [5, 0]], "RightLine": [[0, 9], [0, 0]], "Number": 2.0},
                      {"LeftLine": [[5, 9]]}]})",
            {R"("LeftLine" (Lanes2) is not saved as it was read.)"});
        row(laneRules(kLaneSkeleton),
            R"({"L": [{"Number": 1}, {"Number": 2}], "R": [7, {"N": 2, "Q": 1}, {"N": 1}, {"N": 9, "Q": 1}]})",
            {"What is no entry under \"R[]\" is not saved.",
             R"("Q" (Lanes2) is not saved: no attribute names it.)"});
        row(makeTemplate(R"("fightCalibrate": {"parent": "F[]"})", {}, "{}"),
            R"({"F": [{"CalibrateArea": {"Area": [], "Rects": [[1, 2], [3, 4]]}},
                      {"CalibrateArea": {"Rects": [[[1, 2], [3, 4]], 5]}}]})",
            {"Calibrate rect (Area2) is not saved as it was read."});
        row(detection("{}"), R"({"D": [[1, 1], [2, 2]]})", {});
        const auto nested = [](const char* value) {
            return QString(R"({"X": %1%2%3})").arg(QString(400, '['), value, QString(400, ']'));
        };
        row(rules({"A|int"}, nested("1")), qPrintable(nested("2")),
            {R"("X" is not saved: no attribute names it.)"});
    }

    void edits()
    {
        Load load(
            rules({"A|int", "M|string", "W|string"}, R"({"R": [{"A": 0, "M": "", "Config": 1}]})"),
            R"({"R": [{"A": 1, "M": "x", "Name": "first"}, {"A": 2, "M": {}}]})");
        load.scene().removeDataInfo(load.entry(0).id());
        load.entry(0).setValue("A", 5);
        load.entry(0).setValue("W", Texts{"w"});
        QVERIFY(load.entry(0).asRead("M"));
        load.entry(0).setValue("M", "y");
        load.addEntry().setValue("A", "not a number");
        QCOMPARE(
            json(load.written()),
            json(
                R"({"R": [{"A": 5, "M": "y", "W": ["w"], "Name": "Rule1", "Enable": true, "Config": 1},
                                {"A": 0, "M": "", "Name": "Rule2", "Enable": true, "Config": 1}]})"));

        const auto addTwo = [](const char* place) {
            const Load made(
                rules({"V|string|0", "V[]|string|1"}, QString(R"({"R": [{"V": %1}]})").arg(place)),
                R"({"R": [{"V": "a"}, {"V": ["a", {"b": 1}]}, {}]})");
            for (RuleDataInfo* entry : {&made.entry(2), &made.addEntry()}) {
                entry->setValue("V", "aa");
                entry->setValue("V[]", "bb");
            }
            QString saved;
            for (int i = 0; i < 4; ++i)
                saved += text(json(made.written())["R"][i]["V"]);
            return saved + made.parser.notices().join(' ');
        };
        QCOMPARE(addTwo("null"),
                 R"("a"[ "a", { "b": 1 } ][ "aa", "bb" ][ "aa", "bb" ]V[] (Rule2) )" +
                     QString("cannot be shown; it is saved as it was read until it is edited."));
        QCOMPARE(addTwo(R"("")"), R"("a""a""aa""aa"V[] is not saved: the template has )" +
                                      QString(R"(something else in its place "V[]". )") +
                                      "V (Rule2) is not saved as it was read.");

        Load typed(rules({"A|int"}, R"({"R": [{}]})"), R"({"R": [{}]})");
        typed.parser.setAlgorithmInfo(2, "code");
        QVERIFY(!json(typed.written())["R"][0].isMember("Config"));
        typed.parser.setAlgorithmInfo(1, "code");
        QCOMPARE(json(typed.written())["R"][0]["Config"]["Type"], Value("code"));
    }

    /// Of two attributes in one place; each is given as name, type and index.
    void shownRowsWin()
    {
        const auto check = [](const char* hidden, const char* shown, const char* place,
                              const QVariant& hiddenValue, const char* expected,
                              const char* facade = "inputBoxNumber") {
            const QString controls = QString(R"([
                {"key": "top", "protocol": {"name": "T", "type": "bool"}},
                {"key": "middle", "protocol": {"name": "M", "type": "bool"},
                 "valid": {"controlKey": "top", "enumValue": "true"}},
                {"key": "shown", "protocol": {%1}},
                {"key": "hidden", "protocol": {%2},
                 "valid": {"controlKey": "middle", "enumValue": "%3"}}])");
            const bool hasRow = *facade != '\0';
            const QString items =
                QString(R"("top": {"facade": "bool"}, "middle": {"facade": "bool"},
                "shown": {"facade": "inputBoxNumber"}, "hidden": {"facade": "%1"})");
            const Load load(
                makeTemplate(R"("ruleDescription": {"rules": {"parent": "R", "controls": )" +
                                 controls.arg(shown, hidden, hasRow ? "true" : "false") + "}}",
                             items.arg(facade), QString(R"({"R": {"V": %1}})").arg(place)),
                QString(R"({"R": {"M": %1, "V": %2}})").arg(hasRow ? "true" : "false", place));
            if (hiddenValue.isValid())
                load.entry().setValue("hidden", hiddenValue);
            load.entry().setValue("shown", 7);
            QCOMPARE(text(json(load.written())["R"]["V"]), text(json(expected)));
        };
        const char* const intAtV = R"("name": "V", "type": "int")";
        const char* const intInV = R"("name": "V[]", "type": "int")";
        const char* const firstInV = R"("name": "V", "type": "int", "index": 0)";
        check(intAtV, intAtV, "5", QVariant(), "7");
        check(intInV, intAtV, "5", QVariant(), "7");
        check(firstInV, intAtV, "5", QVariant(), "7");
        check(intInV, firstInV, "5", QVariant(), "7");
        check(R"("name": "V[]", "type": "int", "index": 0)", firstInV, "[5, 6]", QVariant(),
              "[7, 6]");
        check(R"("name": "V", "type": "string")", intAtV, "null", Texts{"a", "b"}, "7");
        check(R"("name": "V", "type": "array int")", firstInV, "[5, 6]", QSize(8, 9), "[7, 9]");
        check(R"("name": "V", "type": "object")", R"("name": "V.A", "type": "int")",
              R"({"A": 5, "B": 6})", R"({"A": 8, "B": 9})", R"({"A": 7, "B": 9})");
        check(intAtV, intAtV, "5", 8, "7", ""); // applies, but has no row
    }

    /// Of two attributes in one place, keyed 0 and 1 and given as "type|index|facade|mode", of
    /// which the row of the mode "a" shows: what is saved when the first one is set.
    void editsWin()
    {
        const auto check = [](const Texts& attributes, const char* place, const char* found,
                              const QVariant& value, const char* expected) {
            Texts controls{R"({"key": "mode", "protocol": {"name": "M", "type": "string"}})"};
            Texts items{R"("mode": {"facade": "radioButton", "enum": ["a", "b"]})"};
            for (const QString& attribute : attributes) {
                const Texts parts = attribute.split('|');
                const QString key = QString::number(controls.size() - 1);
                const QString valid = R"(, "valid": {"controlKey": "mode", "enumValue": "%1"})";
                controls += QString(R"({"key": "%1", "protocol": {"name": "V", "type": "%2",
                                        "index": %3}%4})")
                                .arg(key, parts[0], parts[1],
                                     parts[3].isEmpty() ? QString() : valid.arg(parts[3]));
                items += QString(R"("%1": {"facade": "%2"})").arg(key, parts[2]);
            }
            const QString section =
                R"("ruleDescription": {"rules": {"parent": "R", "controls": [%1]}})";
            const Load load(makeTemplate(section.arg(controls.join(',')), items.join(','),
                                         QString(R"({"R": {"M": "", "V": %1}})").arg(place)),
                            QString(R"({"R": {"M": "a", "V": %1}})").arg(found));
            if (value.isValid())
                load.entry().setValue("0", value);
            const QString saved = text(json(load.written())["R"]["V"]);
            QVERIFY2(saved == text(json(expected)),
                     qPrintable(attributes.join(' ') + ' ' + found + ": " + saved));
        };
        const char* const number = "int|-1|inputBoxNumber|a";
        const char* const range = "array int|-1|numericalInterval|a";
        check({number, "int|-1|inputBoxNumber|b"}, "0", "[1, 2]", 7, "7");
        check({range, "array int|-1|numericalInterval|b"}, "[0, 0]", "5", QSize(3, 4), "[3, 4]");
        check({range, "bool|-1||"}, "[0, 0]", "5", QSize(3, 4), "[3, 4]");
        check({range, "bool|-1||"}, "[0, 0]", R"("x")", QSize(3, 4), "[3, 4]");
        check({number, "bool|-1||"}, "0", "[1]", 7, "7");
        check({range, "int|-1|inputBoxNumber|b"}, "[0, 0]", "[1, 2, 3]", QVariant(), "[1, 2, 3]");
        const char* const words = "string|-1|inputBoxNumber|";
        check({number, words}, "0", R"("abc")", 7, "7");
        check({number, words}, "0", "5.5", QVariant(), "5.5");
        check({number, words}, "0", "5", QVariant(), R"("5")");
    }

    void calibrationLengths()
    {
        // What the template and the skeleton's staffs say, what a new area shows, what is sent
        // with its staffs, and who is named for lacking a length.
        const auto check = [](const char* described, const char* staffs, const Texts& lengths,
                              const char* notices) {
            const QString section = R"("calibrateArea": {"parent": "C[]", "method": )";
            const QString skeleton = QString(R"({"C": [{"Staffs": [%1]}]})").arg(staffs);
            const Load load(makeTemplate(section + described + '}', {}, skeleton), "{}");
            const RuleDataInfo& entry = load.addEntry();
            load.draw(1, entry, {{1, 1}, {1, 5}});
            load.draw(2, entry, {{1, 1}, {5, 1}});
            const Value written = json(load.written())["C"][0]["Staffs"];
            QCOMPARE(written.size(), 2);
            const char* const keys[] = {"calibrateAreaVertical", "calibrateAreaHorizontal"};
            for (int i = 0; i < 2; ++i) {
                QCOMPARE(entry.value(keys[i]).toString(), lengths[i]);
                const Value* sent = qAsConst(written)[i].find("Length");
                QCOMPARE(sent ? QString::number(sent->asDouble()) : QString(), lengths[i]);
            }
            QCOMPARE(load.parser.notices().join(' '), QString(notices));
        };
        const char* const vertical = R"({"Type": "Vertical", "Length": 1.75})";
        const char* const both =
            R"({"Type": "Horizontal", "Length": 4}, {"Type": "Vertical", "Length": 2})";
        check(R"("Scene")", vertical, {"1.75", "1.75"}, "");
        check(R"("Scene")", both, {"2", "4"}, "");
        check(R"("Scene", "defaultWidth": 3.5)", both, {"2", "3.5"}, "");
        check(R"("Scene", "defaultHeight": 3.5)", "{}", {"3.5", ""},
              "Area1 has no horizontal length.");
        check(R"("Lane")", both, {"", ""}, "Area1 has no length. Area1 has no width.");

        const Load unreadable(
            makeTemplate(R"("calibrateArea": {"parent": "C[]", "method": "Scene"})", {}, "{}"),
            R"({"C": [{"Staffs": [{"Type": "Vertical", "Length": "2.5 m",
                                                  "Start": [1, 2], "End": [1, 5]}]}]})");
        const QString told = unreadable.parser.notices().join(' ');
        QVERIFY2(told.startsWith("vertical (Area1) cannot be shown") &&
                     !told.contains("no vertical length"),
                 qPrintable(told));

        // Read without a staff, a lane's area shows no length that is not sent, but sends the
        // one that is entered then.
        const Load lane(makeTemplate(R"("calibrateArea": {"parent": "C", "method": "Lane",
                                         "defaultWidth": 3, "defaultHeight": 9.5})",
                                     {}, "{}"),
                        R"({"C": [{"Area": [[1, 1], [2, 2], [3, 1]], "Method": "Lane"}]})");
        QCOMPARE(json(lane.written())["C"][0]["Staffs"].size(), 0);
        QVERIFY(lane.parser.notices().contains("Area1 has no width."));
        lane.entry().setValue("calibrateAreaHorizontal", 4.5);
        QCOMPARE(json(lane.written())["C"][0]["Staffs"],
                 json(R"([{"Type": "Horizontal", "Length": 4.5, "Start": [2, 2],
                           "End": [3, 1]}])"));
    }

    void detectionEdits()
    {
        const auto check = [](const char* skeleton, const char* config, const char* expected) {
            const Load load(detection(skeleton), config);
            load.draw(0, load.addEntry(), {{7, 7}, {8, 8}});
            QCOMPARE(text(json(load.written())["D"]), text(json(expected)));
        };
        const char* const bare = R"({"D": [[1, 1], [2, 2]]})";
        check("{}", bare, "[[[1, 1], [2, 2]], [[7, 7], [8, 8]]]");
        check(bare, "{}", "[[7, 7], [8, 8]]");
        check(R"({"D": [{"X": 1, "A": []}]})", bare,
              R"([[[1, 1], [2, 2]], {"X": 1, "A": [[7, 7], [8, 8]]}])");
        check("{}", "{}", R"([{"A": [[7, 7], [8, 8]], "B": null}])");
    }

    void refusals()
    {
        Load unread(rules({"A|int"}, "{}"), "{");
        QVERIFY(!unread.isRead);
        QCOMPARE(unread.scene().getDataCount(), 0);
        QCOMPARE(unread.written(), QStringLiteral("{}"));
        const Load bare(R"({"configDescription": {"calibrateArea": {"parent": "C"}}})", "{}");
        QVERIFY(bare.isRead);
        QCOMPARE(bare.written(), QStringLiteral("not written"));
        const auto whyNot = [](const char* parent, const char* instead) {
            const Load lanes(laneRules(kLaneSkeleton).replace(parent, instead), "{}");
            lanes.addEntry().setValue("N", 1);
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
        const QDir examples(QStringLiteral(RULES_SOURCE_DIR "/examples"));
        for (const QString& name : examples.entryList(QDir::Dirs | QDir::NoDotAndDotDot))
            QTest::newRow(qPrintable(name)) << examples.filePath(name);
    }

    /// An example stays as it is. One value after another of an example's documents becomes
    /// something else: whatever is read of that and written stays as it is from then on.
    void examplesAndTheirMutations()
    {
        QFETCH(QString, folder);
        Value templateDocument = file(folder + "/template.json");
        Value config = file(folder + "/config.json");
        const QString templateText = templateDocument.toStyledText();
        const QString configText = config.toStyledText();
        const Load example(templateText, configText);
        QVERIFY(example.isRead && json(example.written()) == config);
        QCOMPARE(example.parser.notices(), Texts());
        for (const auto& scene : example.parser.getAllData()) {
            QString message;
            QVERIFY2(scene->checkData(message), qPrintable(message));
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
