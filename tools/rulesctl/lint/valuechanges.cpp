#include "tools/rulesctl/lint/valuechanges.h"

#include "Protocol/entryloss.h"
#include "tools/rulesctl/lint/jsonpointer.h"

#include <QStringList>

#include <algorithm>

using kql::Json::Value;

namespace
{

QStringList sortedTexts(const Value& list)
{
    QStringList texts;
    for (int i = 0; i < list.size(); ++i)
        texts.append(list[i].toCompactText());
    std::sort(texts.begin(), texts.end());
    return texts;
}

/// Whether @p after is a list of the same length whose elements are not those of @p before in
/// another order.
bool canBeMatched(const Value& before, const Value& after)
{
    return before.size() == after.size() && sortedTexts(before) != sortedTexts(after);
}

} // namespace

void ValueChanges::compare(const Value& before, const Value& after,
                           const std::string& pointer) const
{
    if (!before.isNull() && !m_hook(*this, before, pointer))
        compareInside(before, after, pointer);
}

void ValueChanges::compareInside(const Value& before, const Value& after,
                                 const std::string& pointer) const
{
    if (before.isObject() && after.isObject())
        compareMembers(before, after, pointer);
    else if (before.isArray() && after.isArray())
        compareElements(before, after, pointer);
    else if (!EntryLoss::isSame(before, after))
        m_tell(Kind::Changed, pointer, before, after);
}

void ValueChanges::compareMembers(const Value& before, const Value& after,
                                  const std::string& pointer) const
{
    for (int i = 0; i < before.size(); ++i) {
        const std::string_view name = before.memberName(i);
        const Value& value = before.memberValue(i);
        const std::string at = JsonPointer::member(pointer, name);
        if (const Value* const left = after.find(name))
            compare(value, *left, at);
        else if (!value.isNull() && !m_hook(*this, value, at))
            m_tell(Kind::Dropped, at, value, Value());
    }
}

void ValueChanges::compareElements(const Value& before, const Value& after,
                                   const std::string& pointer) const
{
    if (before == after)
        return;
    if (!canBeMatched(before, after)) {
        if (!EntryLoss::isSame(before, after))
            m_tell(Kind::Changed, pointer, before, after);
        return;
    }
    for (int i = 0; i < before.size(); ++i)
        compare(before[i], after[i], JsonPointer::element(pointer, i));
}
