#include "workbench/rowhand.h"

#include "host/value.h"
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

enum class Kind { Input, CheckBoxes, RadioButtons, Switch, Range, None };

Kind kindOf(const QWidget* row)
{
    if (row->inherits("InputBoxTabel"))
        return Kind::Input;
    if (row->inherits("CheckBoxTabel"))
        return Kind::CheckBoxes;
    if (row->inherits("RadioButtonTabel"))
        return Kind::RadioButtons;
    if (row->inherits("BoolTabel"))
        return Kind::Switch;
    return row->inherits("InputRangeEditTabel") ? Kind::Range : Kind::None;
}

QString storedValue(const QAbstractButton* box)
{
    return box->property("value").toString();
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

// The edits limit each other: a minimum above the maximum shown has to wait for its own.
QString setRange(QWidget* row, const Value& value)
{
    const char* const names[] = {"minimum", "maximum"};
    const auto* maximum = row->findChild<QLineEdit*>(QString::fromLatin1(names[1]));
    const bool isLimited = maximum && !maximum->text().isEmpty() && value[0].isNumeric();
    const bool rises = isLimited && value[0].asDouble() > maximum->text().toDouble();
    for (const int i : {rises ? 1 : 0, rises ? 0 : 1}) {
        auto* edit = row->findChild<QLineEdit*>(QString::fromLatin1(names[i]));
        const QString why = OperatorHand::type(edit, textOf(value[i]), true);
        if (!why.isEmpty())
            return why;
    }
    return {};
}

Value shownRange(const QWidget* row)
{
    Value result(ValueType::Array);
    for (const char* name : {"minimum", "maximum"}) {
        const auto* edit = row->findChild<QLineEdit*>(QString::fromLatin1(name));
        const bool isEmpty = !edit || edit->text().isEmpty();
        result.append(isEmpty ? Value() : Value(edit->text().toInt()));
    }
    return result;
}

Value shownOptions(const QWidget* row)
{
    Value result(ValueType::Array);
    for (const QAbstractButton* box : row->findChildren<QAbstractButton*>()) {
        if (box->isChecked())
            result.append(storedValue(box));
    }
    return result;
}

} // namespace

QString set(QWidget* row, const Value& value)
{
    switch (kindOf(row)) {
    case Kind::Input:
        return OperatorHand::type(row->findChild<QLineEdit*>(), textOf(value), true);
    case Kind::CheckBoxes:
        return setCheckBoxes(row, value);
    case Kind::RadioButtons:
        return setRadioButton(row, textOf(value));
    case Kind::Switch:
        return setSwitch(row, value.asBool());
    case Kind::Range:
        return setRange(row, value);
    case Kind::None:
        break;
    }
    return QCoreApplication::translate("RowHand", "it is no attribute row");
}

QString type(QWidget* row, const QString& text)
{
    return OperatorHand::type(row->findChild<QLineEdit*>(), text, false);
}

Value shown(const QWidget* row)
{
    switch (kindOf(row)) {
    case Kind::Input: {
        const auto* edit = row->findChild<QLineEdit*>();
        return edit ? Value(edit->property("value").toString()) : Value();
    }
    case Kind::CheckBoxes:
        return shownOptions(row);
    case Kind::RadioButtons: {
        const Value checked = shownOptions(row);
        return checked[0];
    }
    case Kind::Switch:
        return row->findChild<QAbstractButton*>()->isChecked();
    case Kind::Range:
        return shownRange(row);
    case Kind::None:
        break;
    }
    return {};
}

bool isUsable(const QWidget* row)
{
    const auto editors = row->findChildren<QWidget*>();
    return std::any_of(editors.begin(), editors.end(), [](const QWidget* editor) {
        const bool edits =
            qobject_cast<const QLineEdit*>(editor) || qobject_cast<const QAbstractButton*>(editor);
        return edits && editor->isEnabled();
    });
}

} // namespace RowHand
