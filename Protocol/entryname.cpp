#include "Protocol/entryname.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

namespace
{

QString nameAt(const RuleData& data, int position)
{
    const bool exists = position >= 0 && position < data.getDataCount();
    return exists ? data.getAllData()[static_cast<std::size_t>(position)]->name() : QString();
}

QSet<QString> takenNames(const RuleData& data)
{
    QSet<QString> taken(data.namesKeptAside().begin(), data.namesKeptAside().end());
    for (int i = 0; i < data.getDataCount(); ++i) {
        if (EntryName::isText(data, i))
            taken.insert(EntryName::written(data, i));
    }
    return taken;
}

/// How many of the digits that @p name ends in are counted on.
int digitsAtEnd(const QString& name)
{
    constexpr int kMostDigits = 19; // more do not fit a number
    const auto isDigit = [](QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); };
    int count = 0;
    while (count < qMin(kMostDigits, name.size()) && isDigit(name[name.size() - 1 - count]))
        ++count;
    return count;
}

QString cut(const QString& name, int most)
{
    const QString beginning = name.left(most);
    const bool isInHalf = name.size() > most && most > 0 && beginning.back().isHighSurrogate();
    return isInHalf ? beginning.chopped(1) : beginning;
}

QString withNumber(const QString& name, quint64 number)
{
    const QString count = QString::number(number);
    return cut(name, EntryName::kMaxLength - count.size()) + count;
}

} // namespace

QString EntryName::written(const RuleData& data, int position)
{
    const QString name = nameAt(data, position);
    return name.isEmpty() ? RuleData::tr("Rule") + QString::number(position + 1) : name;
}

bool EntryName::isText(const RuleData& data, int position)
{
    return !data.getAllData()[static_cast<std::size_t>(position)]->nameAsRead();
}

QString EntryName::unused(const RuleData& data, const QString& wanted)
{
    const QSet<QString> taken = takenNames(data);
    QString name = wanted;
    for (int number = data.getDataCount() + 1; taken.contains(name); ++number)
        name = RuleData::tr("Rule") + QString::number(number);
    return name;
}

std::optional<CheckFault> EntryName::duplicate(const RuleData& data)
{
    if (data.getSceneType() != SceneType::Rules)
        return std::nullopt;
    QSet<QString> names;
    for (int i = 0; i < data.getDataCount(); ++i) {
        if (!isText(data, i))
            continue;
        const QString name = written(data, i);
        if (names.contains(name))
            return CheckFault{QCoreApplication::translate("IntelligentRulesUI::SaveCheck",
                                                          "Duplicate rule name exists"),
                              data.getAllData()[static_cast<std::size_t>(i)]->id(),
                              QString::fromLatin1(kRow),
                              {},
                              0};
        names.insert(name);
    }
    return std::nullopt;
}

void EntryName::nameAll(const RuleData& data)
{
    for (const auto& entry : data.getAllData())
        nameEntry(data, *entry);
}

void EntryName::nameEntry(const RuleData& data, RuleDataInfo& entry)
{
    if (data.getSceneType() == SceneType::Rules && entry.name().isEmpty() && !entry.nameAsRead())
        entry.setName(button(data, data.indexOf(entry.id())));
}

bool EntryName::areKept(const RuleData& data)
{
    const auto sections = data.getTemplate()->sections();
    return std::any_of(sections.begin(), sections.end(), [](const TemplateSection& section) {
        return section.name == ConfigMember::kRuleSection;
    });
}

QString EntryName::ofCopy(const RuleData& data, const QString& wanted)
{
    const QSet<QString> taken = takenNames(data);
    const int digits = digitsAtEnd(wanted);
    const QString stem = wanted.chopped(digits);
    quint64 number = digits > 0 ? wanted.right(digits).toULongLong() : 1;
    QString name = wanted;
    while (taken.contains(name)) {
        const QString count = QStringLiteral("%1").arg(++number, digits, 10, QLatin1Char('0'));
        name = cut(stem, kMaxLength - count.size()) + count;
    }
    return name;
}

QString EntryName::numbered(const RuleData& data, const QString& wanted)
{
    const QSet<QString> taken = takenNames(data);
    QString name = wanted;
    for (quint64 number = 2; taken.contains(name); ++number)
        name = withNumber(wanted, number);
    return name;
}

bool EntryName::isNumbered(const QString& name, const QString& wanted)
{
    for (int digits = digitsAtEnd(name); digits > 0; --digits) {
        const quint64 number = name.right(digits).toULongLong();
        if (number >= 2 && name == withNumber(wanted, number))
            return true;
    }
    return name == wanted;
}

QString EntryName::button(const RuleData& data, int position)
{
    return button(data, nameAt(data, position), position);
}

QString EntryName::button(const RuleData& data, const QString& name, int position)
{
    if (!name.isEmpty())
        return name;
    const bool isOnlyOne = data.getTemplate() && data.getTemplate()->countRange().max < 2;
    return isOnlyOne ? data.getRuleFucTitle()
                     : data.getRuleFucTitle() + QString::number(position + 1);
}

QString EntryName::child(const RuleProtocolItem& item, int number)
{
    const bool isOnlyOne = item.countRange().max == 1;
    return isOnlyOne ? item.caption() : item.caption() + QString::number(number);
}
