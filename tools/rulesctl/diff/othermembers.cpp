#include "tools/rulesctl/diff/othermembers.h"

#include "Protocol/entryloss.h"
#include "host/json/value.h"

#include <algorithm>

using kql::Json::Value;

namespace
{

const Value& valueOf(const Value* place)
{
    static const Value none;
    return place ? *place : none;
}

QString escaped(QString name)
{
    return name.replace(QLatin1Char('~'), QLatin1String("~0"))
        .replace(QLatin1Char('/'), QLatin1String("~1"));
}

/// What both have, in the order of the first.
QStringList memberNames(const Value& a, const Value& b)
{
    QStringList names = a.memberNames();
    const QStringList others = b.memberNames();
    const QSet<QString> known(names.cbegin(), names.cend());
    std::copy_if(others.begin(), others.end(), std::back_inserter(names),
                 [&known](const QString& name) { return !known.contains(name); });
    return names;
}

} // namespace

void NamedPaths::add(const QString& path, int index)
{
    QString text = path;
    text.replace(QLatin1String("[]."), QLatin1String("."));
    if (text.endsWith(QLatin1String("[]")))
        text.chop(2);
    m_indexes[text].insert(index);
    m_stations.insert(QString());
    for (int dot = text.indexOf('.'); dot >= 0; dot = text.indexOf('.', dot + 1))
        m_stations.insert(text.left(dot));
}

OtherMembers::Place OtherMembers::Place::member(const QString& name) const
{
    const std::string utf8 = name.toStdString();
    const QString step = QLatin1Char('/') + escaped(name);
    return {valueOf(a).find(utf8), valueOf(b).find(utf8), pointerA + step, pointerB + step};
}

OtherMembers::Place OtherMembers::Place::element(int index) const
{
    const auto in = [index](const Value& list) {
        return index < list.size() ? &list[index] : nullptr;
    };
    const QString step = QLatin1Char('/') + QString::number(index);
    return {in(valueOf(a)), in(valueOf(b)), pointerA + step, pointerB + step};
}

bool OtherMembers::areSame(const Value& a, const Value& b)
{
    return EntryLoss::isSame(a, b) && EntryLoss::isSame(b, a);
}

void OtherMembers::compare(const Place& place, const QString& path) const
{
    const Value& a = valueOf(place.a);
    const Value& b = valueOf(place.b);
    if (m_named.isWhole(path) || areSame(a, b))
        return;
    const bool leadsOn = m_named.leadsOn(path);
    if ((a.isObject() && b.isObject()) || (leadsOn && (a.isObject() || b.isObject())))
        return compareMembers(place, path);
    const bool areLists = a.isArray() && b.isArray() && a.size() == b.size();
    const bool hasNamed = leadsOn || m_named.hasElements(path);
    if (areLists ? (hasNamed || a[0].isObject()) : (hasNamed && (a.isArray() || b.isArray())))
        return compareElements(place, path);
    // What stands alone where an element is named is that element.
    if (!m_named.isElement(path, 0))
        m_tell(place);
}

void OtherMembers::compareMembers(const Place& place, const QString& path) const
{
    const QStringList names = memberNames(valueOf(place.a), valueOf(place.b));
    for (const QString& name : names)
        compare(place.member(name), path.isEmpty() ? name : path + QLatin1Char('.') + name);
}

/// A path goes on in the first element of a list alone.
void OtherMembers::compareElements(const Place& place, const QString& path) const
{
    static const NamedPaths none;
    const OtherMembers plainly(none, m_tell);
    const auto sizeOf = [](const Value& value) { return value.isArray() ? value.size() : 0; };
    const int count = std::max(sizeOf(valueOf(place.a)), sizeOf(valueOf(place.b)));
    for (int i = 0; i < count; ++i) {
        const Place element = place.element(i);
        if (i == 0 && m_named.leadsOn(path))
            compare(element, path);
        else if (!m_named.isElement(path, i))
            plainly.compare(element, QString());
    }
}
