#include "fuzz/pairs/pairmaker.h"

#include "host/json/reader.h"

using kql::Json::Value;
using kql::Json::ValueType;
using Type = Attribute::Type;

namespace
{

Value parsed(const char* text)
{
    Value value;
    kql::Json::Reader().parse(std::string_view(text), value);
    return value;
}

struct Kind {
    Type type;
    const char* spelling;
    const char* sample;
};

constexpr Kind kKinds[] = {
    {Type::Bool, "bool", "true"},           {Type::Int, "int", "3"},
    {Type::Float, "float", "0.5"},          {Type::Text, "string", "\"s\""},
    {Type::Texts, "string", "[\"Human\"]"}, {Type::Interval, "array int", "[1, 2]"},
    {Type::Object, "object", "{\"o\": 1}"}, {Type::None, "array", "4"},
    {Type::Figure, "point", "[]"},
};

const Kind& kindOf(Type type)
{
    return kKinds[int(type)];
}

bool isList(Type type)
{
    return type == Type::Texts || type == Type::Interval || type == Type::Figure;
}

constexpr const char* kRows[] = {"bool",     "inputBoxNumber",    "inputBoxNumber", "radioButton",
                                 "checkbox", "numericalInterval", "radioButton",    "",
                                 ""};
constexpr const char* kFigures[] = {"region", "line", "rect", "directLine"};
constexpr int kFigurePoints[] = {3, 2, 2, 2};

} // namespace

PairMaker::PairMaker(unsigned seed, bool conforming) : m_random(seed), m_conforming(conforming)
{
    templateDocument["configDescription"]["ruleDescription"] = Value(ValueType::Object);
    templateDocument["configItems"] = Value(ValueType::Object);
    templateDocument["configTemplate"] = Value(ValueType::Object);
    config = Value(ValueType::Object);
    const int scenes = 1 + pick(7);
    if (scenes & 1)
        addSection("rules", "Rules[]");
    if (scenes & 2)
        addSection("global", "Camera.Global");
    if (scenes & 4)
        addSection("detectArea", "Detect.Areas[]");
    if (m_conforming)
        addFixedScenes();
    if (isSpoilt(30))
        config["Extra"] = oddity();
}

void PairMaker::addSection(const char* name, const char* parent)
{
    Section section{name, parent, {}};
    Value& described = templateDocument["configDescription"]["ruleDescription"][name];
    described["parent"] = Value(parent);
    described["controls"] = Value(ValueType::Array);
    const int count = 1 + pick(9);
    for (int i = 0; i < count; ++i) {
        section.attributes.push_back(attribute(i, section.name != "global"));
        section.attributes.back().key = section.name + std::to_string(i);
        describe(section.attributes.back(), described["controls"]);
    }
    const Value first = prototype(section);
    const bool isObject = section.name == "global" || isSpoilt(10);
    addEntries(section, isObject, first);
    sections.push_back(section);
}

Attribute PairMaker::attribute(int number, bool mayDraw)
{
    Attribute made;
    // A scene has one figure of a kind here, so that it is plain which one is drawn.
    made.type = number < 2 && mayDraw ? Type::Figure : kKinds[pick(8)].type;
    const std::string name = "V" + std::to_string(number);
    const char* const before[] = {"", "Config.", "List[].", "Config.Deep."};
    made.path = before[pick(4)] + name + (isList(made.type) ? "[]" : "");
    if (!isList(made.type) && pick(4) == 0) {
        made.path = "Shared[]";
        made.index = number;
    }
    made.facade = made.type == Type::Figure ? kFigures[number] : kRows[int(made.type)];
    return made;
}

void PairMaker::describe(const Attribute& attribute, Value& controls)
{
    Value control;
    control["key"] = Value(attribute.key);
    control["protocol"]["name"] = Value(attribute.path);
    control["protocol"]["type"] = Value(kindOf(attribute.type).spelling);
    if (attribute.index >= 0)
        control["protocol"]["index"] = Value(attribute.index);
    if (controls.size() > 2 && pick(4) == 0) {
        control["valid"]["controlKey"] = controls[controls.size() - 1]["key"];
        control["valid"]["enumValueArray"] = parsed(R"(["true", "s", "3"])");
    }
    controls.append(control);
    if (attribute.facade.empty())
        return;
    Value& details = templateDocument["configItems"][attribute.key];
    details["describe"] = Value(attribute.key);
    details["facade"] = Value(attribute.facade);
    if (attribute.type == Type::Int && pick(2))
        details["range"] = parsed("[0, 100]");
    if (pick(2) && (attribute.type == Type::Int || attribute.type == Type::Bool))
        details["default"] = parsed(kindOf(attribute.type).sample);
    if (attribute.facade == "radioButton" || attribute.facade == "checkbox")
        details["enumeration"] = parsed(R"([{"name": "s", "value": "s"}, {"name": "t",
            "value": "t"}, {"name": "o", "value": {"o": 2}}])");
}

Value PairMaker::prototype(const Section& section)
{
    Value made(ValueType::Object);
    made["Own"] = Value(pick(3));
    for (const Attribute& attribute : section.attributes) {
        if (isSpoilt(12) && attribute.path.substr(0, 4) != "List")
            continue;
        Value& place = attribute.make(made);
        place = parsed(kindOf(attribute.type).sample);
        if (attribute.index < 0 && isSpoilt(12))
            place = pick(2) ? Value() : oddity();
    }
    return made;
}

Value PairMaker::entry(const Section& section, const Value& prototype)
{
    Value made(ValueType::Object);
    made["Own"] = prototype["Own"];
    if (section.hasNames()) {
        made["Name"] = Value("n" + std::to_string(m_random()));
        made["Enable"] = Value(pick(2) == 0);
        if (isSpoilt(20))
            made["Name"] = oddity();
        if (isSpoilt(20))
            made["Enable"] = oddity();
    }
    for (const Attribute& attribute : section.attributes) {
        if (!isSpoilt(15))
            attribute.make(made) = isSpoilt(30) ? oddity() : value(attribute);
    }
    if (isSpoilt(20))
        made["Extra"] = oddity();
    return made;
}

void PairMaker::addEntries(const Section& section, bool isObject, const Value& prototype)
{
    const auto placeIn = [&section](Value& document) -> Value& {
        const Attribute place{Type::None, {}, section.parent, -1, {}};
        return place.make(document);
    };
    Value& target = placeIn(templateDocument["configTemplate"]);
    Value& source = placeIn(config);
    if (isObject) {
        target = prototype;
        source = entry(section, prototype);
        return;
    }
    if (!isSpoilt(10))
        target.append(prototype);
    const int count = pick(4);
    for (int i = 0; i < count; ++i)
        source.append(isSpoilt(5) ? Value(i) : entry(section, target[0]));
}

Value PairMaker::points(int count)
{
    Value list(ValueType::Array);
    for (int i = 0; i < count; ++i) {
        Value point;
        point.append(Value(pick(8193)));
        point.append(Value(pick(8193)));
        list.append(point);
    }
    return list;
}

Value PairMaker::value(const Attribute& attribute)
{
    switch (attribute.type) {
    case Type::Bool:
        return Value(pick(2) == 0);
    case Type::Int:
        return Value(int(m_random()));
    case Type::Float:
        return pick(2) ? Value(pick(1000)) : Value(int(m_random()) / 1024.0);
    case Type::Text:
        return Value(std::to_string(m_random()));
    case Type::Texts:
        return parsed(pick(2) ? R"(["s", "x", "t"])" : "[]");
    case Type::Interval:
        return parsed(pick(2) ? "[7, 90000]" : "[0, 0]");
    case Type::Object:
        return parsed(pick(2) ? R"({"b": [1.0, 18446744073709551615], "a": null})" : "[true]");
    case Type::None:
        return parsed(kindOf(attribute.type).sample);
    case Type::Figure:
        break;
    }
    const bool isRegion = attribute.facade == kFigures[0];
    return points(kFigurePoints[isRegion ? 0 : 1]);
}

Value PairMaker::oddity()
{
    static const Value odd = parsed(R"([null, true, false, 0, 1, -7, 12, 5.0, 2.5, 5000000000,
        9007199254740993, 18446744073709551615, 1e300, "", "x", "12", "true", [], [7], [7.0, -3],
        ["x", 8, 9], ["a", "b"], ["a", 1, true], ["a", {}], [null, 4], [[1, 2], [3, 4.5], [5], 6],
        {}, {"a": 1}, [{}]])");
    return odd[pick(odd.size())];
}

/// Scenes whose entries are no template's: they go through as they are.
void PairMaker::addFixedScenes()
{
    Value& described = templateDocument["configDescription"];
    described["lanes"]["parent"] = Value("Lanes[]");
    described["fightCalibrate"]["parent"] = Value("Fight[]");
    described["calibrateArea"] = parsed(R"({"parent": "Calibrate[]", "method": "Scene"})");
    Value& skeleton = templateDocument["configTemplate"];
    skeleton["Lanes"] = parsed(R"([{"Number": 0, "LeftLineType": "", "RightLineType": "",
                                    "LeftLine": [], "RightLine": []}])");
    skeleton["Fight"] = parsed(R"([{"CalibrateArea": {"Area": [], "Rects": []}}])");
    skeleton["Calibrate"] = parsed(R"([{"Area": [], "Method": "", "Staffs": [
        {"Type": "", "Length": 1.5, "Start": [0, 0], "End": [0, 0]}]}])");
    for (const char* name : {"Lanes", "Fight", "Calibrate"})
        config[name] = Value(ValueType::Array);
    for (int i = 0; i < pick(4); ++i) {
        Value lane = parsed(R"({"LeftLine": [[100, 8000], [900, 10]],
            "RightLine": [[4000, 8000], [3000, 10]], "LeftLineType": "Yellow",
            "RightLineType": "Other"})");
        lane["Number"] = Value(i + 1);
        config["Lanes"].append(lane);
        Value fight;
        fight["CalibrateArea"]["Area"] = points(4);
        fight["CalibrateArea"]["Rects"].append(points(2));
        config["Fight"].append(fight);
        Value area = parsed(R"({"Method": "Scene", "Staffs": [{"Type": "Vertical", "Length": 2,
            "Start": [10, 10], "End": [10, 90]}, {"Type": "Horizontal", "Length": 3.5,
            "Start": [10, 10], "End": [90, 10]}]})");
        area["Area"] = points(4);
        config["Calibrate"].append(area);
    }
}
