#include "Protocol/entryname.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"

#include <QSet>

namespace
{

QString nameAt(const RuleData& data, int position)
{
    const bool exists = position >= 0 && position < data.getDataCount();
    return exists ? data.getAllData()[static_cast<std::size_t>(position)]->name() : QString();
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
    QSet<QString> taken(data.namesKeptAside().begin(), data.namesKeptAside().end());
    for (int i = 0; i < data.getDataCount(); ++i) {
        if (isText(data, i))
            taken.insert(written(data, i));
    }
    QString name = wanted;
    for (int number = data.getDataCount() + 1; taken.contains(name); ++number)
        name = RuleData::tr("Rule") + QString::number(number);
    return name;
}

QString EntryName::button(const RuleData& data, int position)
{
    const QString name = nameAt(data, position);
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
