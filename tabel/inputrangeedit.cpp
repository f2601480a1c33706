#include "tabel/inputrangeedit.h"

#include "host/api/rowcontract.h"
#include "tabel/intvalidator.h"
#include "tabel/rowedit.h"

#include <QLabel>
#include <QLoggingCategory>
#include <limits>
#include <utility>

namespace
{

Q_LOGGING_CATEGORY(lcRange, "rules.tabel.range", QtWarningMsg)

constexpr int kUnset = -1;
constexpr int kHeight = 30;
constexpr int kDashWidth = 16;
const auto kEmptyValidator = QStringLiteral("emptyValidator");

/// For edits that may be left empty.
class OptionalIntValidator : public IntValidator
{
public:
    using IntValidator::IntValidator;

    State validate(QString& text, int& position) const override
    {
        return text.isEmpty() ? Acceptable : IntValidator::validate(text, position);
    }
};

QString shownText(int value)
{
    return value == kUnset ? QString() : QString::number(value);
}

/// The number typed; unset for anything else.
int typedValue(const RowEdit& edit)
{
    bool isNumber = false;
    const int value = edit.text().toInt(&isNumber);
    return isNumber ? value : kUnset;
}

void setEmptyValidator(RowEdit& edit)
{
    if (edit.validator() && edit.validator()->objectName() == kEmptyValidator)
        return;
    auto* validator = new OptionalIntValidator(&edit);
    validator->setObjectName(kEmptyValidator);
    edit.replaceValidator(validator);
}

} // namespace

InputRangeEdit::InputRangeEdit(QWidget* parent)
    : QWidget(parent),
      m_minimum(new RowEdit(this)),
      m_maximum(new RowEdit(this)),
      m_dash(new QLabel(QStringLiteral("-"), this))
{
    setFixedHeight(kHeight);
    m_minimum->setObjectName(QString::fromLatin1(RowContract::kMinimum));
    m_maximum->setObjectName(QString::fromLatin1(RowContract::kMaximum));
    m_dash->setAlignment(Qt::AlignCenter);
    setEmptyValidator(*m_minimum);
    setEmptyValidator(*m_maximum);
    connect(m_minimum, &RowEdit::textEdited, this, &InputRangeEdit::minimumEdited);
    connect(m_minimum, &RowEdit::editingFinished, this,
            [this] { setMiniValue(typedValue(*m_minimum), true); });
    connect(m_maximum, &RowEdit::editingFinished, this,
            [this] { setMaxValue(typedValue(*m_maximum), true); });
    for (const RowEdit* edit : {m_minimum, m_maximum})
        connect(edit, &RowEdit::sgnRefusalChanged, this, &InputRangeEdit::sgnRefusalChanged);
}

void InputRangeEdit::setMiniValue(int value, bool emitChange)
{
    limitMaximumEdit(value);
    m_minimum->showValue(shownText(value));
    store({value, m_range.height()}, "setMiniValue:", emitChange);
}

void InputRangeEdit::setMaxValue(int value, bool emitChange)
{
    limitMinimumEdit(value);
    m_maximum->showValue(shownText(value));
    store({m_range.width(), value}, "setMaxValue:", emitChange);
}

void InputRangeEdit::store(const QSize& range, const char* setter, bool emitChange)
{
    if (std::exchange(m_range, range) == range || !emitChange)
        return;
    qCDebug(lcRange, "%s sgnRangeValueChange", setter);
    emit sgnRangeValueChange();
}

void InputRangeEdit::setRange(const QSize& range, bool emitChange)
{
    setMiniValue(range.width(), false);
    setMaxValue(range.height(), false);
    if (emitChange)
        emit sgnRangeValueChange();
}

void InputRangeEdit::setStepRange(int bottom, int top)
{
    m_minimum->setStepRange(bottom, top);
    m_maximum->setStepRange(bottom, top);
}

void InputRangeEdit::finishEdits()
{
    m_minimum->finishEdit();
    m_maximum->finishEdit();
}

bool InputRangeEdit::isRefusing() const
{
    return m_minimum->isRefusing() || m_maximum->isRefusing();
}

void InputRangeEdit::limitMaximumEdit(int minimum)
{
    if (minimum == kUnset) {
        setEmptyValidator(*m_maximum);
        return;
    }
    const auto* current = qobject_cast<const QIntValidator*>(m_maximum->validator());
    if (current && current->bottom() == minimum)
        return;
    // A maximum below the minimum is refused, not mended: it may be on its way to a longer number.
    auto* validator = new OptionalIntValidator(m_maximum);
    validator->QIntValidator::setRange(minimum, std::numeric_limits<int>::max());
    m_maximum->replaceValidator(validator);
}

void InputRangeEdit::limitMinimumEdit(int maximum)
{
    if (maximum == kUnset) {
        setEmptyValidator(*m_minimum);
        return;
    }
    const auto* current = qobject_cast<const QIntValidator*>(m_minimum->validator());
    if (current && current->top() == maximum)
        return;
    auto* validator = new OptionalIntValidator(m_minimum);
    validator->setRange(0, maximum);
    m_minimum->replaceValidator(validator);
}

void InputRangeEdit::minimumEdited(const QString& text)
{
    bool hasMinimum = false;
    bool hasMaximum = false;
    const double minimum = text.toDouble(&hasMinimum);
    const int maximum = m_maximum->text().toInt(&hasMaximum);
    if (hasMinimum && hasMaximum && minimum > maximum)
        setMiniValue(maximum, true);
}

void InputRangeEdit::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int editWidth = qMax(0, (width() - kDashWidth) / 2);
    m_minimum->setGeometry(0, 0, editWidth, kHeight);
    m_dash->setGeometry(editWidth, 0, kDashWidth, kHeight);
    m_maximum->setGeometry(editWidth + kDashWidth, 0, width() - editWidth - kDashWidth, kHeight);
}
