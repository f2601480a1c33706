#include "tabel/inputboxtabel.h"

#include "Protocol/ruleprotocolitem.h"
#include "tabel/inputboxwidget.h"
#include "tabel/intvalidator.h"
#include "tabel/numbertip.h"
#include "tabel/rowedit.h"

#include <QDoubleValidator>
#include <limits>

namespace
{

constexpr int kDecimals = 2;

ValueType typeOf(const RuleProtocolItem* item)
{
    return item ? item->valueType() : ValueType::None;
}

template<class Number>
Number limit(const QVariant& value, Number open)
{
    return value.isValid() ? value.value<Number>() : open;
}

QString shownText(const QVariant& value)
{
    if (value.type() == QVariant::Double)
        return QString::number(value.toDouble(), 'f', QLocale::FloatingPointShortest);
    return value.toString();
}

} // namespace

InputBoxTabel::InputBoxTabel(QWidget* parent)
    : ControlTabel(parent), m_box(new InputBoxWidget(this))
{
    addWidget(m_box, false);
    m_box->show();
    connect(m_box->lineEdit(), &RowEdit::textEdited, this, &InputBoxTabel::textEdited);
    connect(m_box->lineEdit(), &RowEdit::editingFinished, this, &InputBoxTabel::editingFinished);
    connect(m_box->lineEdit(), &RowEdit::sgnRefusalChanged, this,
            [this] { setRefusing(m_box->lineEdit()->isRefusing()); });
}

void InputBoxTabel::init()
{
    const RuleProtocolItem* item = protocolItem();
    if (typeOf(item) == ValueType::Int)
        m_box->lineEdit()->replaceValidator(createIntValidator());
    else if (typeOf(item) == ValueType::Float)
        m_box->lineEdit()->replaceValidator(createFloatValidator());
    else
        m_box->lineEdit()->replaceValidator(nullptr);
    m_box->setUnit(item ? item->units() : QString());
    setTip(isForNumbers() ? NumberTip::of(*item) : QString());
    ControlTabel::init();
}

bool InputBoxTabel::isForNumbers() const
{
    const ValueType type = typeOf(protocolItem());
    return type == ValueType::Int || type == ValueType::Float;
}

QValidator* InputBoxTabel::createIntValidator() const
{
    const RuleProtocolItem& item = *protocolItem();
    const int maximum = limit(item.rangeMaximum(), std::numeric_limits<int>::max());
    if (item.rangeMinimum().isValid())
        return new IntValidator(item.rangeMinimum().toInt(), maximum, m_box->lineEdit());
    // Without a minimum there is nothing to mend an empty edit with.
    auto* validator = new IntValidator(m_box->lineEdit());
    validator->QIntValidator::setRange(std::numeric_limits<int>::min(), maximum);
    return validator;
}

QValidator* InputBoxTabel::createFloatValidator() const
{
    const RuleProtocolItem& item = *protocolItem();
    auto* validator = new QDoubleValidator(m_box->lineEdit());
    const double infinity = std::numeric_limits<double>::infinity();
    validator->setRange(limit(item.rangeMinimum(), -infinity), limit(item.rangeMaximum(), infinity),
                        kDecimals);
    validator->setNotation(QDoubleValidator::StandardNotation);
    validator->setLocale(numberLocale());
    return validator;
}

void InputBoxTabel::setValue(const QVariant& value, bool emitChange)
{
    m_box->lineEdit()->showValue(shownText(value));
    if (emitChange)
        announce();
}

QVariant InputBoxTabel::value() const
{
    const QString text = m_box->lineEdit()->value();
    if (!isForNumbers())
        return text;
    if (text.isEmpty())
        return {};
    return typeOf(protocolItem()) == ValueType::Int ? QVariant(text.toInt())
                                                    : QVariant(text.toDouble());
}

QVariant InputBoxTabel::heldValue() const
{
    return m_box->lineEdit()->value();
}

void InputBoxTabel::finishEdit()
{
    m_box->lineEdit()->finishEdit();
}

void InputBoxTabel::setControlEnable(bool enable)
{
    storeControlEnable(enable);
    m_box->lineEdit()->setEnabled(enable);
}

void InputBoxTabel::setValidator(const QValidator* validator)
{
    m_box->lineEdit()->replaceValidator(validator);
}

void InputBoxTabel::setMaxLength(int length)
{
    m_box->lineEdit()->setMaxLength(length);
}

void InputBoxTabel::textEdited(const QString& text)
{
    if (!isForNumbers())
        return;
    QVariant maximum = protocolItem()->rangeMaximum();
    // Left to the validator, a number longer than any int would become the minimum.
    if (!maximum.isValid() && protocolItem()->rangeMinimum().isValid() &&
        typeOf(protocolItem()) == ValueType::Int)
        maximum = std::numeric_limits<int>::max();
    bool isNumber = false;
    const double typed = text.toDouble(&isNumber);
    // Too small a number may be on its way to a longer one; too large a one only grows.
    if (isNumber && maximum.isValid() && maximum.toDouble() < typed)
        setValue(maximum, true);
}

void InputBoxTabel::editingFinished()
{
    const QString text = m_box->lineEdit()->value();
    const ValueType type = typeOf(protocolItem());
    if (type == ValueType::Int)
        finishInt(text);
    else if (type == ValueType::Float)
        finishFloat(text);
    else
        setValue(text, true);
}

void InputBoxTabel::finishInt(const QString& text)
{
    const int number = text.toInt();
    const QVariant minimum = protocolItem()->rangeMinimum();
    const QVariant maximum = protocolItem()->rangeMaximum();
    if (minimum.isValid() && minimum.toInt() > number)
        setValue(minimum.toInt(), true);
    if (maximum.isValid() && maximum.toInt() < number)
        setValue(maximum.toInt(), true);
    // Receivers rely on the typed number being announced last.
    setValue(number, true);
}

void InputBoxTabel::finishFloat(const QString& text)
{
    const QVariant minimum = protocolItem()->rangeMinimum();
    const QVariant maximum = protocolItem()->rangeMaximum();
    bool isNumber = false;
    double number = text.toDouble(&isNumber);
    if (minimum.isValid() && (!isNumber || minimum.toDouble() > number))
        number = minimum.toDouble();
    if (maximum.isValid() && maximum.toDouble() < number)
        number = maximum.toDouble();
    setValue(number, true);
}
