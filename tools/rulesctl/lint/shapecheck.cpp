#include "tools/rulesctl/lint/checks.h"

#include "Protocol/templatemembers.h"
#include "tools/rulesctl/lint/findingmaker.h"
#include "tools/rulesctl/lint/jsonkind.h"
#include "tools/rulesctl/lint/jsonpointer.h"
#include "tools/rulesctl/lint/lintedtemplate.h"

#include <QVariant>

#include <algorithm>

using FindingMaker::quoted;
using kql::Json::Value;

namespace
{

constexpr int kPair = 2;

/// What it may be and is read as, its control's type decides.
constexpr std::string_view kDefault = "default";

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

/// What the reader makes of @p value where only values of @p kinds belong.
QString fateOf(const TemplateMember& member, unsigned kinds, const Value& value)
{
    using Member = TemplateMember;
    const auto readAs = [](const QString& text) { return QStringLiteral("is read as ") + text; };
    if (kinds & (Member::Whole | Member::Cut))
        return readAs(QString::number(value.asInt()));
    if (kinds & Member::Number)
        return readAs(QString::number(value.asDouble()));
    if (kinds & Member::Switch)
        return readAs(QVariant(value.asBool()).toString());
    if (kinds & Member::List)
        return QStringLiteral("is ignored");
    if (kinds & Member::Text)
        return readAs(QStringLiteral("an empty text"));
    const bool isSkeleton = member.inside == TemplatePlace::None && !value.isNull();
    return isSkeleton ? QStringLiteral("takes nothing that is saved")
                      : readAs(QStringLiteral("an empty object"));
}

/// Whether the member @p name of @p object is of no use beside another one.
bool isOverruled(TemplatePlace place, std::string_view name, const Value& object)
{
    return place == TemplatePlace::Condition && name == "enumValueArray" &&
           object.isMember("enumValue");
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
            const TemplateMember* const member = TemplateMembers::find(place, name);
            if (isOverruled(place, name, object))
                addOverruled(object.memberValue(i), at);
            else if (member && name != kDefault)
                value(*member, object.memberValue(i), at);
            else if (!member && !isSchema)
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
            addWrongKind(member, member.kinds, value, pointer);
        else if (value.isArray())
            list(member, value, pointer);
        else if (value.isObject() && member.inside == TemplatePlace::Items)
            items(value, pointer);
        else if (value.isObject() && member.inside != TemplatePlace::None)
            object(member.inside, value, pointer);
    }

    void list(const TemplateMember& member, const Value& list, const std::string& pointer)
    {
        const int readCount = member.isPair ? std::min(kPair, list.size()) : list.size();
        for (int i = 0; i < readCount; ++i) {
            const std::string at = JsonPointer::element(pointer, i);
            if (!JsonKind::isAmong(list[i], member.elements))
                addWrongKind(member, member.elements, list[i], at);
            else if (member.inside != TemplatePlace::None)
                object(member.inside, list[i], at);
        }
        if (member.isPair && list.size() < kPair)
            addMissing({}, pointer);
    }

    void items(const Value& items, const std::string& pointer)
    {
        for (int i = 0; i < items.size(); ++i) {
            const Value& details = items.memberValue(i);
            const std::string at = JsonPointer::member(pointer, items.memberName(i));
            constexpr unsigned kKinds = TemplateMember::Object | TemplateMember::Null;
            if (!JsonKind::isAmong(details, kKinds))
                addWrongKind({"", kKinds, false, TemplatePlace::Items}, kKinds, details, at);
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

    void addOverruled(const Value& value, const std::string& pointer)
    {
        FindingMaker::add(m_findings, "unknown-key", pointer, value,
                          QStringLiteral("\"enumValue\" is read in its place"))
            .isAtKey = true;
    }

    void addWrongKind(const TemplateMember& member, unsigned kinds, const Value& value,
                      const std::string& pointer)
    {
        const QStringList names = JsonKind::names(kinds);
        const bool isBeyond = value.isNumeric() &&
                              (kinds & (TemplateMember::Whole | TemplateMember::Cut)) &&
                              !JsonKind::isAmong(value, TemplateMember::Cut);
        const QString what = isBeyond ? QStringLiteral("beyond 32 bits")
                                      : QStringLiteral("no ") + names.join(QLatin1String(" or "));
        FindingMaker::add(
            m_findings, "wrong-kind", pointer, value,
            QStringLiteral("this is %1, and %2").arg(what, fateOf(member, kinds, value)))
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
