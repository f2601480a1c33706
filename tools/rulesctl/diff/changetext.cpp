#include "tools/rulesctl/diff/changetext.h"

#include "Protocol/ruleprotocolitem.h"
#include "Protocol/valuecompare.h"
#include "Protocol/valueconversion.h"
#include "draw/shortenedtext.h"
#include "host/json/value.h"
#include "tools/rulesctl/diff/change.h"

#include <QLocale>
#include <QStringList>

#include <algorithm>

using kql::Json::Value;

namespace
{

constexpr int kLongestValue = 200; // in characters

QString choiceText(const QString& text, const RuleProtocolItem& item)
{
    const QString wanted = ComparableText::of(text, item.valueType());
    const auto& choices = item.enumeration();
    const auto found = std::find_if(choices.begin(), choices.end(), [&](const EnumOption& choice) {
        return ComparableText::of(choice.value, item.valueType()) == wanted;
    });
    return found == choices.end() || found->text.isEmpty() ? text : found->text;
}

QString plain(const Value& value)
{
    if (value.isNull())
        return QStringLiteral("nothing");
    if (value.isDouble())
        return QString::number(value.asDouble(), 'g', QLocale::FloatingPointShortest);
    return ShortenedText::of(value.isString() ? value.asString() : value.toCompactText(),
                             kLongestValue);
}

QString withUnits(const QString& text, const RuleProtocolItem& item)
{
    return item.units().isEmpty() ? text : text + QLatin1Char(' ') + item.units();
}

QString switchText(const Value& value)
{
    if (!value.isBool())
        return plain(value);
    return value.asBool() ? QStringLiteral("on") : QStringLiteral("off");
}

QString choicesText(const Value& value, const RuleProtocolItem& item)
{
    QStringList texts;
    for (int i = 0; i < value.size(); ++i)
        texts.append(choiceText(plain(value[i]), item));
    return texts.isEmpty() ? QStringLiteral("nothing")
                           : ShortenedText::of(texts.join(QLatin1String(", ")), kLongestValue);
}

/// From the first character on in which it differs from @p other, when it is long.
QString apart(const QString& text, const QString& other)
{
    const int most = std::min(text.size(), other.size());
    const auto differs = std::mismatch(text.begin(), text.begin() + most, other.begin()).first;
    const int same = static_cast<int>(differs - text.begin());
    return same < kLongestValue / 2
               ? ShortenedText::of(text, kLongestValue)
               : QChar(0x2026) + ShortenedText::of(text.mid(same), kLongestValue);
}

/// "from … to …", with the values as documents have them where operators read the same of both, as
/// of 15 and "15".
QString fromTo(const Change& change, const QString& from, const QString& to)
{
    const auto sentence = QStringLiteral("from %1 to %2");
    if (from != to)
        return sentence.arg(from, to);
    const QString was = change.from.toCompactText();
    const QString is = change.to.toCompactText();
    const auto both = QStringLiteral("%1 (%2)");
    return sentence.arg(both.arg(from, apart(was, is)), both.arg(to, apart(is, was)));
}

QString corners(const Value& points)
{
    return QString::number(points.size()) +
           (points.size() == 1 ? QLatin1String(" point") : QLatin1String(" points"));
}

QString figureText(const Change& change)
{
    const QString caption =
        change.number == 0 ? change.caption
                           : change.caption + QLatin1Char(' ') + QString::number(change.number);
    if (change.from.isNull())
        return QStringLiteral("%1 was drawn").arg(caption);
    if (change.to.isNull())
        return QStringLiteral("%1 is no longer there").arg(caption);
    if (change.isTurned)
        return QStringLiteral("%1 is crossed in another direction").arg(caption);
    if (!change.by)
        return QStringLiteral("%1 has %2 instead of %3")
            .arg(caption, corners(change.to), corners(change.from));
    if (*change.by == 0) // rounded
        return QStringLiteral("%1 was moved by less than 0.1 %").arg(caption);
    return QStringLiteral("%1 was moved by up to %2 %")
        .arg(caption, QString::number(*change.by, 'f', 1));
}

/// Of a section without buttons its key stands for the entry.
QString subject(const Change& change)
{
    return change.name.isEmpty() ? change.scene : change.name;
}

QString entryText(const Change& change)
{
    switch (change.kind) {
    case Change::Kind::Added:
        return QStringLiteral("was added at place %1").arg(*change.b);
    case Change::Kind::Removed:
        return QStringLiteral("was removed from place %1").arg(*change.a);
    case Change::Kind::Renamed:
        return plain(change.from) == plain(change.to)
                   ? QStringLiteral("has its name changed ") +
                         fromTo(change, plain(change.from), plain(change.to))
                   : QStringLiteral("was called %1 before").arg(plain(change.from));
    case Change::Kind::Moved:
        return *change.a == *change.b
                   ? QStringLiteral("was moved past others, and is at place %1 as before")
                         .arg(*change.b)
                   : QStringLiteral("was moved from place %1 to %2").arg(*change.a).arg(*change.b);
    case Change::Kind::Enabled:
        return QStringLiteral("was switched ") +
               fromTo(change, switchText(change.from), switchText(change.to));
    default:
        return {};
    }
}

QString otherText(const Change& change)
{
    return QStringLiteral("%1 changed %2 (%3)")
        .arg(change.pointer.isEmpty() ? QStringLiteral("The document") : change.pointer,
             fromTo(change, plain(change.from), plain(change.to)),
             change.isSaved ? QStringLiteral("no row shows it")
                            : QStringLiteral("no attribute names it, and no save keeps it"));
}

} // namespace

QString ChangeText::shown(const Value& value, const RuleProtocolItem& item)
{
    if (value.isNull())
        return plain(value);
    switch (item.facade()) {
    case FacadeType::Bool:
        return switchText(value);
    case FacadeType::CheckBox:
        return value.isArray() ? choicesText(value, item) : choiceText(plain(value), item);
    case FacadeType::RadioButton:
        return value.isObject()
                   ? choiceText(ValueConversion::parseJsonToValue(value, item).toString(), item)
                   : choiceText(plain(value), item);
    case FacadeType::NumericalInterval:
        if (value.isArray() && value.size() == 2)
            return withUnits(QStringLiteral(u"%1\u2013%2").arg(plain(value[0]), plain(value[1])),
                             item);
        break;
    default:
        break;
    }
    return withUnits(plain(value), item);
}

QString ChangeText::of(const Change& change, const RuleProtocolItem* item)
{
    if (change.kind == Change::Kind::Other)
        return otherText(change);
    if (!item)
        return subject(change) + QLatin1Char(' ') + entryText(change);
    const QString said = item->isFigure()
                             ? figureText(change)
                             : QStringLiteral("%1 changed %2")
                                   .arg(change.caption, fromTo(change, shown(change.from, *item),
                                                               shown(change.to, *item)));
    return subject(change) + QLatin1String(": ") + said;
}
