#include "workbench/stepcheck.h"

#include "host/value.h"

#include <QCoreApplication>

namespace StepCheck
{

using kql::Json::Value;

namespace
{

/// A window of more would take gigabytes.
constexpr int kMaxExtent = 8192; // pixels

struct Member {
    const char* step;
    const char* name;
    bool (*isRight)(const Value& value);
    const char* takes;
};

bool isPosition(const Value& value)
{
    return value.isArray() && value.size() == 2 && value[0].isNumeric() && value[1].isNumeric();
}

bool isExtent(const Value& value)
{
    return value.isInt() && value.asInt() >= 1 && value.asInt() <= kMaxExtent;
}

bool isSize(const Value& value)
{
    return value.isArray() && value.size() == 2 && isExtent(value[0]) && isExtent(value[1]);
}

bool isButton(const Value& value)
{
    return value.isNull() || value.asString() == QLatin1String("left") ||
           value.asString() == QLatin1String("right");
}

bool isSwitch(const Value& value)
{
    return value.isBool();
}

bool isText(const Value& value)
{
    return value.isString();
}

constexpr char kPosition[] = "a position, [x, y]";
constexpr char kSwitch[] = "true or false";
constexpr char kText[] = "a text";

const Member kMembers[] = {
    {"size", "window", isSize, "a width and a height of 1 to 8192"},
    {"press", "at", isPosition, kPosition},
    {"press", "button", isButton, "\"left\" or \"right\""},
    {"move", "at", isPosition, kPosition},
    {"double", "at", isPosition, kPosition},
    {"enable", "on", isSwitch, kSwitch},
    {"fold", "fold", isSwitch, kSwitch},
    {"type", "text", isText, kText},
    {"screenshot", "file", isText, kText},
};

} // namespace

QString fault(const Value& step)
{
    const QString name = step["do"].asString();
    for (const Member& member : kMembers) {
        if (name == QLatin1String(member.step) && !member.isRight(step[member.name]))
            return QCoreApplication::translate("StepCheck", "\"%1\" takes %2")
                .arg(QString::fromLatin1(member.name),
                     QCoreApplication::translate("StepCheck", member.takes));
    }
    if (name == QLatin1String("set") && !step.isMember("value"))
        return QCoreApplication::translate("StepCheck", "there is no \"value\" to set");
    return {};
}

} // namespace StepCheck
