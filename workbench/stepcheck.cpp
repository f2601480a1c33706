#include "workbench/stepcheck.h"

#include "host/json/value.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <QStringList>

#include <functional>

namespace StepCheck
{

using kql::Json::Value;

namespace
{

/// A window of more would take gigabytes.
constexpr int kMaxExtent = 8192; // pixels
constexpr int kMaxWait = 600000; // milliseconds
constexpr int kMaxTimes = 1000;

struct Member {
    const char* step;
    const char* name;
    std::function<bool(const Value& value)> isRight;
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

bool isHeld(const Value& value)
{
    return value.isNull() || value.asString() == QLatin1String("Ctrl") ||
           value.asString() == QLatin1String("Shift");
}

bool isKey(const Value& value)
{
    const QKeySequence keys(value.asString());
    return keys.count() == 1 && int(keys[0]) != Qt::Key_unknown;
}

bool isCount(const Value& value)
{
    return value.isNull() || (value.isInt() && value.asInt() >= 1 && value.asInt() <= kMaxTimes);
}

bool isTarget(const Value& value)
{
    return value.isNull() || value.asString() == QLatin1String("picture");
}

bool isTimeOrPicture(const Value& step)
{
    const Value& time = step["ms"];
    return step["picture"] == Value(true) ||
           (time.isInt() && time.asInt() >= 0 && time.asInt() <= kMaxWait);
}

/// An empty text is contained in every line.
bool isNotice(const Value& value)
{
    return value.isNull() || (value.isString() && !value.asString().isEmpty());
}

bool isMessage(const Value& value)
{
    return value.isNull() || value.isObject();
}

bool isFocus(const Value& value)
{
    return value.isNull() || value.isString();
}

constexpr char kPosition[] = QT_TRANSLATE_NOOP("StepCheck", "a position, [x, y]");
constexpr char kSwitch[] = QT_TRANSLATE_NOOP("StepCheck", "true or false");
constexpr char kText[] = QT_TRANSLATE_NOOP("StepCheck", "a text");

const Member kMembers[] = {
    {"size", "window", isSize, QT_TRANSLATE_NOOP("StepCheck", "a width and a height of 1 to 8192")},
    {"press", "at", isPosition, kPosition},
    {"press", "button", isButton, QT_TRANSLATE_NOOP("StepCheck", "\"left\" or \"right\"")},
    {"press", "with", isHeld, QT_TRANSLATE_NOOP("StepCheck", "\"Ctrl\" or \"Shift\"")},
    {"drag", "from", isPosition, kPosition},
    {"drag", "to", isPosition, kPosition},
    {"drag", "with", isHeld, QT_TRANSLATE_NOOP("StepCheck", "\"Ctrl\" or \"Shift\"")},
    {"double", "with", isHeld, QT_TRANSLATE_NOOP("StepCheck", "\"Ctrl\" or \"Shift\"")},
    {"move", "at", isPosition, kPosition},
    {"double", "at", isPosition, kPosition},
    {"double", "button", isButton, QT_TRANSLATE_NOOP("StepCheck", "\"left\" or \"right\"")},
    {"key", "keys", isKey, QT_TRANSLATE_NOOP("StepCheck", "one key with its modifiers")},
    {"key", "times", isCount, QT_TRANSLATE_NOOP("StepCheck", "a number from 1 to 1000")},
    {"key", "to", isTarget, QT_TRANSLATE_NOOP("StepCheck", "\"picture\"")},
    {"menu", "text", &Value::isString, kText},
    {"menu", "clip", isMessage, QT_TRANSLATE_NOOP("StepCheck", "an entry")},
    {"key", "clip", isMessage, QT_TRANSLATE_NOOP("StepCheck", "an entry")},
    {"enable", "on", &Value::isBool, kSwitch},
    {"fold", "fold", &Value::isBool, kSwitch},
    {"type", "text", &Value::isString, kText},
    {"screenshot", "file", &Value::isString, kText},
    {"expect", "posted", isMessage, QT_TRANSLATE_NOOP("StepCheck", "members, or null")},
    {"expect", "focus", isFocus,
     QT_TRANSLATE_NOOP("StepCheck", "a row's key, \"picture\" or null")},
    {"expect", "notice", isNotice,
     QT_TRANSLATE_NOOP("StepCheck", "a text that is not empty, or null")},
};

const QStringList kExpected{QStringLiteral("box"),     QStringLiteral("posted"),
                            QStringLiteral("hint"),    QStringLiteral("entries"),
                            QStringLiteral("current"), QStringLiteral("notice"),
                            QStringLiteral("row"),     QStringLiteral("focus")};
const QStringList kOfRow{QStringLiteral("value"), QStringLiteral("visible"),
                         QStringLiteral("enabled"), QStringLiteral("marked")};

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(StepCheck)
};

/// What is compared with nothing would hold always.
QString expectationFault(const Value& step)
{
    QStringList names = step.memberNames();
    names.removeAll(QStringLiteral("do"));
    names.removeAll(QStringLiteral("scene"));
    for (const QString& name : qAsConst(names)) {
        const bool isOfRow = kOfRow.contains(name);
        if (!isOfRow && !kExpected.contains(name))
            return Texts::tr("there is no expectation \"%1\"").arg(name);
        if (isOfRow && !step.isMember("row"))
            return Texts::tr("\"%1\" is expected of a \"row\" only").arg(name);
    }
    return names.isEmpty() ? Texts::tr("there is nothing to expect") : QString();
}

} // namespace

QString fault(const Value& step)
{
    const QString name = step["do"].asString();
    for (const Member& member : kMembers) {
        if (name == QLatin1String(member.step) && !member.isRight(step[member.name]))
            return Texts::tr("\"%1\" takes %2")
                .arg(QString::fromLatin1(member.name), Texts::tr(member.takes));
    }
    if (name == QLatin1String("set") && !step.isMember("value"))
        return Texts::tr("there is no \"value\" to set");
    if (name == QLatin1String("hover") && !step.isMember("entry") && !isPosition(step["at"]))
        return Texts::tr("\"hover\" takes \"at\", a position, or an \"entry\"");
    if (name == QLatin1String("wait") && !isTimeOrPicture(step))
        return Texts::tr("\"wait\" takes \"picture\": true, or \"ms\" of 0 to 600000");
    return name == QLatin1String("expect") ? expectationFault(step) : QString();
}

} // namespace StepCheck
