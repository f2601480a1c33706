#include "workbench/rowhand.h"

#include "host/api/rowcontract.h"
#include "host/json/value.h"
#include "workbench/operatorhand.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QLineEdit>

#include <algorithm>

namespace RowHand
{

using kql::Json::Value;
using kql::Json::ValueType;

namespace
{

using namespace RowContract;

int kindOf(const QWidget* row)
{
    return row->property(kKind).toInt();
}

QString storedValue(const QAbstractButton* box)
{
    return box->property(kOption).toString();
}

QString textOf(const Value& value)
{
    if (value.isNull())
        return {};
    return value.isString() ? value.asString() : value.toStyledText().trimmed();
}

bool contains(const Value& list, const QString& text)
{
    for (int i = 0; i < list.size(); ++i) {
        if (textOf(list[i]) == text)
            return true;
    }
    return false;
}

// Wanted boxes first, so that the row never has none checked on the way.
QString setCheckBoxes(QWidget* row, const Value& wanted)
{
    for (const bool check : {true, false}) {
        for (QAbstractButton* box : row->findChildren<QAbstractButton*>()) {
            const bool want = contains(wanted, storedValue(box));
            if (want != check || box->isChecked() == want)
                continue;
            const QString why = OperatorHand::click(box);
            if (!why.isEmpty())
                return why;
        }
    }
    return {};
}

QString setRadioButton(QWidget* row, const QString& wanted)
{
    for (QAbstractButton* button : row->findChildren<QAbstractButton*>()) {
        if (storedValue(button) == wanted)
            return OperatorHand::click(button);
    }
    return QCoreApplication::translate("RowHand", "it has no option \"%1\"").arg(wanted);
}

QString setSwitch(QWidget* row, bool on)
{
    auto* box = row->findChild<QAbstractButton*>();
    return box && box->isChecked() == on ? QString() : OperatorHand::click(box);
}

/// An edit that shows what it is to show is left alone: typing it again could mend it.
QString setLimit(const QWidget* row, const char* name, const Value& value)
{
    auto* edit = row->findChild<QLineEdit*>(QString::fromLatin1(name));
    const bool isThere = edit && !edit->isModified() && edit->text() == textOf(value);
    return isThere ? QString() : OperatorHand::type(edit, textOf(value), true);
}

// Neither limit may pass the other on the way, and beside a maximum none below 0 can be typed.
QString setRange(QWidget* row, const Value& value)
{
    const QSize held = row->property(kValue).toSize();
    const bool isNegative = value[0].asInt() < 0 && value[0].asInt() != held.width();
    const bool isBelow = !value[1].isNull() && value[1].asInt() < held.width();
    const bool minimumFirst = isNegative || isBelow;
    QString why = isNegative ? setLimit(row, kMaximum, Value()) : QString();
    if (why.isEmpty() && minimumFirst)
        why = setLimit(row, kMinimum, value[0]);
    if (why.isEmpty())
        why = setLimit(row, kMaximum, value[1]);
    return why.isEmpty() && !minimumFirst ? setLimit(row, kMinimum, value[0]) : why;
}

Value limit(int held)
{
    return held == -1 ? Value() : Value(held);
}

Value list(const QStringList& texts)
{
    Value result(ValueType::Array);
    for (const QString& text : texts)
        result.append(text);
    return result;
}

Value list(const QSize& range)
{
    Value result(ValueType::Array);
    result.append(limit(range.width()));
    result.append(limit(range.height()));
    return result;
}

} // namespace

QString set(QWidget* row, const Value& value)
{
    switch (kindOf(row)) {
    case Text:
        return OperatorHand::type(row->findChild<QLineEdit*>(QString::fromLatin1(kEdit)),
                                  textOf(value), true);
    case Choices:
        return setCheckBoxes(row, value);
    case Choice:
        return setRadioButton(row, textOf(value));
    case Switch:
        return setSwitch(row, value.asBool());
    case Range:
        return setRange(row, value);
    default:
        break;
    }
    return QCoreApplication::translate("RowHand", "it is no attribute row");
}

QString type(QWidget* row, const QString& text, const QString& edit)
{
    return OperatorHand::type(row->findChild<QLineEdit*>(edit), text, false);
}

Value shown(const QWidget* row)
{
    const QVariant held = row->property(kValue);
    switch (kindOf(row)) {
    case Text:
        return held.toString();
    case Choices:
        return list(held.toStringList());
    case Choice:
        return held.toString().isEmpty() ? Value() : Value(held.toString());
    case Switch:
        return held.toBool();
    case Range:
        return list(held.toSize());
    default:
        return {};
    }
}

bool isKnown(const QWidget* row)
{
    return kindOf(row) >= Text && kindOf(row) <= Range;
}

bool isTyped(const QWidget* row)
{
    return kindOf(row) == Text || kindOf(row) == Range;
}

bool isUsable(const QWidget* row)
{
    const auto editors = row->findChildren<QWidget*>();
    return std::any_of(editors.begin(), editors.end(), [](const QWidget* editor) {
        return editor->focusPolicy() != Qt::NoFocus && editor->isEnabled();
    });
}

} // namespace RowHand
