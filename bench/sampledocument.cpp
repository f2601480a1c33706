#include "bench/sampledocument.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>
#include <cmath>

namespace
{

const char* const kRuleTemplate = R"({"configDescription": {"ruleDescription": {
  "rules": {"count": [0, 1000000], "parent": "Rules[]", "controls": [
    {"key": "region", "protocol": {"name": "Region[]", "type": "point"}},
    {"key": "action", "protocol": {"name": "Action", "type": "string"}},
    {"key": "shortest", "protocol": {"name": "Shortest", "type": "int"}},
    {"key": "longest", "protocol": {"name": "Longest", "type": "int"}},
    {"key": "confidence", "protocol": {"name": "Confidence", "type": "float"}},
    {"key": "size", "protocol": {"name": "Size[]", "type": "array int"}}],
   "checkValueControls": [
    {"firstKey": "shortest", "secondKey": "longest", "rule": {"operator": "<"}}]}}},
 "configItems": {
  "region": {"describe": "Region", "facade": "region", "range": [3, 16]},
  "action": {"describe": "Action", "facade": "radioButton", "enumeration": [
    {"name": "Enter", "value": "Enter"}, {"name": "Leave", "value": "Leave"},
    {"name": "Stay", "value": "Stay"}]},
  "shortest": {"describe": "Shortest", "facade": "inputBoxNumber", "range": [0, 600]},
  "longest": {"describe": "Longest", "facade": "inputBoxNumber", "range": [0, 600]},
  "confidence": {"describe": "Confidence", "facade": "inputBoxNumber", "range": [0, 100]},
  "size": {"describe": "Size", "facade": "numericalInterval"}},
 "configTemplate": {"Rules": [{"Name": "", "Enable": true, "Region": [], "Action": "Enter",
  "Shortest": 0, "Longest": 0, "Confidence": 0.5, "Size": [0, 0]}]}})";

/// Eight points around a circle, in 0..8192.
QJsonArray region(QRandomGenerator& random)
{
    const int x = random.bounded(800, 7392);
    const int y = random.bounded(800, 7392);
    const int radius = random.bounded(150, 750);
    QJsonArray points;
    for (int i = 0; i < 8; ++i) {
        const double angle = i * std::acos(-1.0) / 4 + 0.3;
        points.append(
            QJsonArray{x + int(radius * std::cos(angle)), y + int(radius * std::sin(angle))});
    }
    return points;
}

QJsonObject rule(int number, QRandomGenerator& random)
{
    const char* const actions[] = {"Enter", "Leave", "Stay"};
    return {{QStringLiteral("Name"), QStringLiteral("Rule %1").arg(number)},
            {QStringLiteral("Enable"), true},
            {QStringLiteral("Region"), region(random)},
            {QStringLiteral("Action"), QString::fromLatin1(actions[random.bounded(3)])},
            {QStringLiteral("Shortest"), random.bounded(1, 100)},
            {QStringLiteral("Longest"), random.bounded(100, 600)},
            {QStringLiteral("Confidence"), random.bounded(400) / 4.0},
            {QStringLiteral("Size"), QJsonArray{random.bounded(10), random.bounded(10, 90)}}};
}

struct Attribute {
    QJsonObject control;
    QJsonObject details;
};

/// The kinds of rows take turns.
Attribute attribute(int number)
{
    const char* const kinds[][2] = {{"inputBoxNumber", "int"},
                                    {"bool", "bool"},
                                    {"radioButton", "string"},
                                    {"checkbox", "string"},
                                    {"numericalInterval", "array int"}};
    const auto& kind = kinds[number % 5];
    const QString type = QString::fromLatin1(kind[1]);
    QJsonArray choices;
    for (const char* name : {"One", "Two", "Three"}) {
        const QString text = QString::fromLatin1(name);
        choices.append(
            QJsonObject{{QStringLiteral("name"), text}, {QStringLiteral("value"), text}});
    }
    const bool isList = number % 5 >= 3;
    const QString path = QStringLiteral("Value%1").arg(number) + QLatin1String(isList ? "[]" : "");
    return {{{QStringLiteral("key"), QStringLiteral("key%1").arg(number)},
             {QStringLiteral("protocol"),
              QJsonObject{{QStringLiteral("name"), path}, {QStringLiteral("type"), type}}}},
            {{QStringLiteral("describe"), QStringLiteral("Attribute %1").arg(number)},
             {QStringLiteral("facade"), QString::fromLatin1(kind[0])},
             {QStringLiteral("range"), QJsonArray{0, 1000}},
             {QStringLiteral("enumeration"), choices}}};
}

} // namespace

QString SampleDocument::ruleTemplate()
{
    return QString::fromLatin1(kRuleTemplate);
}

QByteArray SampleDocument::rules(int count)
{
    QRandomGenerator random(1);
    QJsonArray list;
    for (int i = 0; i < count; ++i)
        list.append(rule(i + 1, random));
    return QJsonDocument(QJsonObject{{QStringLiteral("Rules"), list}})
        .toJson(QJsonDocument::Compact);
}

QString SampleDocument::panelTemplate(int attributes)
{
    QJsonObject document = QJsonDocument::fromJson(kRuleTemplate).object();
    const QString description = QStringLiteral("configDescription");
    QJsonObject section = document[description].toObject();
    QJsonObject items = document[QStringLiteral("configItems")].toObject();
    QJsonObject groups = section[QStringLiteral("ruleDescription")].toObject();
    QJsonObject rules = groups[QStringLiteral("rules")].toObject();
    QJsonArray controls{rules[QStringLiteral("controls")].toArray().first()};
    for (int i = 0; i < attributes; ++i) {
        const Attribute made = attribute(i);
        controls.append(made.control);
        items[made.control[QStringLiteral("key")].toString()] = made.details;
    }
    rules[QStringLiteral("controls")] = controls;
    rules.remove(QStringLiteral("checkValueControls"));
    groups[QStringLiteral("rules")] = rules;
    section[QStringLiteral("ruleDescription")] = groups;
    document[description] = section;
    document[QStringLiteral("configItems")] = items;
    return QString::fromUtf8(QJsonDocument(document).toJson(QJsonDocument::Compact));
}
