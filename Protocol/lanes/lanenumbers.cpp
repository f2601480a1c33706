#include "Protocol/lanes/lanenumbers.h"

#include "Protocol/lanes/lanestemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/validity.h"

#include <QSet>

int LaneNumbers::smallestFree(const RuleData& data)
{
    QSet<int> taken;
    for (const auto& entry : data.getAllData()) {
        const QVariant number = entry->value(LanesTemplate::kNumber);
        if (number.isValid())
            taken.insert(number.toInt());
    }
    const CountRange count = data.getTemplate()->countRange();
    int number = count.min;
    while (number <= count.max && number < kAnyCount && taken.contains(number))
        ++number;
    return number;
}

void LaneNumbers::giveFree(const RuleData& data, RuleDataInfo& entry)
{
    const int number = smallestFree(data);
    entry.setValue(LanesTemplate::kNumber, number);
    if (entry.hasValue(LanesTemplate::kRuleLaneNumber))
        entry.setValue(LanesTemplate::kRuleLaneNumber, number);
    Validity::update(*data.getTemplate(), entry);
}
