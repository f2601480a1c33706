#include "tabel/numbertip.h"

#include "Protocol/ruleprotocolitem.h"

#include <QLocale>
#include <QStringList>

namespace
{

QString shown(const QVariant& limit)
{
    return QString::number(limit.toDouble(), 'f', QLocale::FloatingPointShortest);
}

} // namespace

QString NumberTip::kindOf(const RuleProtocolItem& item)
{
    if (item.valueType() == ValueType::ArrayInt)
        return tr("Whole numbers");
    return item.valueType() == ValueType::Float ? tr("Number") : tr("Whole number");
}

QString NumberTip::of(const RuleProtocolItem& item)
{
    QStringList parts(kindOf(item));
    const QVariant& minimum = item.rangeMinimum();
    const QVariant& maximum = item.rangeMaximum();
    if (minimum.isValid() && maximum.isValid())
        parts += tr("%1 to %2").arg(shown(minimum), shown(maximum));
    else if (minimum.isValid())
        parts += tr("at least %1").arg(shown(minimum));
    else if (maximum.isValid())
        parts += tr("at most %1").arg(shown(maximum));
    if (!item.units().isEmpty())
        parts += tr("unit: %1").arg(item.units());
    return parts.join(QStringLiteral(", "));
}

QString NumberTip::refusal(const QString& tip)
{
    return tr("What was typed is not taken here. %1").arg(tip);
}
