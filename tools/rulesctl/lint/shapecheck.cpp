#include "tools/rulesctl/lint/checks.h"

#include "Protocol/templatemembers.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/jsonkind.h"
#include "tools/rulesctl/lint/jsonpointer.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

using FindingMaker::quoted;
using kql::Json::Value;

namespace
{

QString textOf(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), int(utf8.size()));
}

QStringList namesOf(TemplatePlace place)
{
    QStringList names;
    for (const TemplateMember& member : TemplateMembers::of(place))
        names.append(QString::fromLatin1(member.name));
    return names;
}

/// Walks through a template along what the reader knows of it.
class Shape
{
public:
    explicit Shape(Findings& findings) : m_findings(findings) {}

    void object(TemplatePlace place, const Value& object, const std::string& pointer)
    {
        for (int i = 0; i < object.size(); ++i) {
            const std::string_view name = object.memberName(i);
            const std::string at = JsonPointer::member(pointer, name);
            const bool isSchema = place == TemplatePlace::Root && name == "$schema";
            if (const TemplateMember* const member = TemplateMembers::find(place, name))
                value(*member, object.memberValue(i), at);
            else if (!isSchema)
                addUnknown(place, name, object.memberValue(i), at);
        }
        for (const TemplateMember& member : TemplateMembers::of(place)) {
            if (member.isNeeded && !object.isMember(member.name))
                addMissing({QString::fromLatin1(member.name)}, pointer);
        }
        if (place == TemplatePlace::Condition)
            conditionValues(object, pointer);
    }

private:
    void value(const TemplateMember& member, const Value& value, const std::string& pointer)
    {
        if (!JsonKind::isAmong(value, member.kinds))
            addWrongKind(member.kinds, value, pointer);
        else if (value.isArray())
            list(member, value, pointer);
        else if (value.isObject() && member.inside == TemplatePlace::Items)
            items(value, pointer);
        else if (value.isObject() && member.inside != TemplatePlace::None)
            object(member.inside, value, pointer);
    }

    void list(const TemplateMember& member, const Value& list, const std::string& pointer)
    {
        for (int i = 0; i < list.size(); ++i) {
            const std::string at = JsonPointer::element(pointer, i);
            if (!JsonKind::isAmong(list[i], member.elements))
                addWrongKind(member.elements, list[i], at);
            else if (member.inside != TemplatePlace::None)
                object(member.inside, list[i], at);
        }
        if (member.isPair && list.size() < 2)
            addMissing({}, pointer);
    }

    void items(const Value& items, const std::string& pointer)
    {
        for (int i = 0; i < items.size(); ++i) {
            const Value& details = items.memberValue(i);
            const std::string at = JsonPointer::member(pointer, items.memberName(i));
            constexpr unsigned kKinds = TemplateMember::Object | TemplateMember::Null;
            if (!JsonKind::isAmong(details, kKinds))
                addWrongKind(kKinds, details, at);
            else
                object(LintedTemplate::placeOfDetails(details), details, at);
        }
    }

    void conditionValues(const Value& condition, const std::string& pointer)
    {
        const Value& several = condition["enumValueArray"];
        const bool hasNone = !condition.isMember("enumValue") &&
                             (several.isNull() || (several.isArray() && several.empty()));
        if (hasNone)
            addMissing({QStringLiteral("enumValue"), QStringLiteral("enumValueArray")}, pointer);
    }

    void addUnknown(TemplatePlace place, std::string_view name, const Value& value,
                    const std::string& pointer)
    {
        Finding& finding =
            FindingMaker::add(m_findings, "unknown-key", pointer, value,
                              QStringLiteral("nothing reads %1 here").arg(quoted(textOf(name))));
        finding.isAtKey = true;
        FindingMaker::expect(finding, textOf(name), namesOf(place));
    }

    void addWrongKind(unsigned kinds, const Value& value, const std::string& pointer)
    {
        const QStringList names = JsonKind::names(kinds);
        FindingMaker::add(
            m_findings, "wrong-kind", pointer, value,
            QStringLiteral("this is no %1, and not read").arg(names.join(QLatin1String(" or "))))
            .expected = names;
    }

    void addMissing(const QStringList& names, const std::string& pointer)
    {
        QStringList inQuotes;
        for (const QString& name : names)
            inQuotes.append(quoted(name));
        const QString what = names.isEmpty() ? QStringLiteral("a second number")
                                             : inQuotes.join(QLatin1String(" or "));
        Finding& finding = FindingMaker::add(m_findings, "missing-member", pointer, Value(),
                                             QStringLiteral("%1 is missing").arg(what));
        if (!names.isEmpty())
            finding.expected = names;
    }

    Findings& m_findings;
};

} // namespace

void Checks::shape(const LintedTemplate& linted, Findings& findings)
{
    Shape(findings).object(TemplatePlace::Root, linted.document(), {});
}
