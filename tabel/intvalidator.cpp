#include "tabel/intvalidator.h"

QLocale numberLocale()
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    return locale;
}

IntValidator::IntValidator(QObject* parent) : QIntValidator(parent)
{
    setLocale(numberLocale());
}

IntValidator::IntValidator(int bottom, int top, QObject* parent)
    : QIntValidator(bottom, top, parent), m_bottomSet(true), m_topSet(true)
{
    setLocale(numberLocale());
}

void IntValidator::setRange(int bottom, int top)
{
    m_bottomSet = true;
    m_topSet = true;
    QIntValidator::setRange(bottom, top);
}

void IntValidator::fixup(QString& text) const
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (m_bottomSet && (!isNumber || number < bottom()))
        text = QStringLiteral("%1").arg(bottom());
    // The number read above counts, 0 where there was none.
    if (m_topSet && number > top())
        text = QStringLiteral("%1").arg(top());
}
