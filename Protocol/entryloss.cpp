#include "Protocol/entryloss.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/savenotices.h"
#include "Protocol/valueconversion.h"
#include "host/json/value.h"

#include <algorithm>

using kql::Json::Value;

namespace
{

constexpr int kNoIndex = -1;

using Comparison = bool (*)(const Value& read, const Value& written);

bool isSameAlone(const Value& read, const Value& written)
{
    const bool isByValue =
        read.isNumeric() && written.isNumeric() && !(read.isInt() && written.isInt());
    return isByValue ? read.asDouble() == written.asDouble() : read == written;
}

bool isKeptAlone(const Value& read, const Value& written)
{
    if (read.isNumeric() && written.isBool())
        return read.asBool() == written.asBool();
    if (!read.isString() && written.isString())
        return ValueConversion::toText(read) == written.asString();
    return isSameAlone(read, written);
}

/// Whether @p written has all that @p read has, lists as long as they were, where @p areAlike
/// compares what is neither.
bool hasAll(const Value& read, const Value& written, Comparison areAlike)
{
    if (read.isNull())
        return true;
    const bool areObjects = read.isObject() && written.isObject();
    if (!areObjects && !(read.isArray() && written.isArray()))
        return areAlike(read, written);
    for (int i = 0; i < read.size(); ++i) {
        const bool isIn = areObjects
                              ? hasAll(read.memberValue(i), written[read.memberName(i)], areAlike)
                              : hasAll(read[i], written[i], areAlike);
        if (!isIn)
            return false;
    }
    for (int i = read.size(); written.isArray() && i < written.size(); ++i) {
        if (!written[i].isNull())
            return false;
    }
    return true;
}

/// Lines of a lane that were drawn right to left change their sides when they are saved.
bool areSwapped(const Value& read, const Value& written)
{
    const Value& left = read[ConfigMember::kLeftLine];
    return !left.isNull() && left == written[ConfigMember::kRightLine] &&
           read[ConfigMember::kRightLine] == written[ConfigMember::kLeftLine];
}

/// Members that every entry of a kind has, whatever the template names.
bool isFixed(const QString& path)
{
    static const QSet<QString> fixed{QStringLiteral("Name"),        QStringLiteral("Enable"),
                                     QStringLiteral("Config.Type"), QStringLiteral("LeftLine"),
                                     QStringLiteral("RightLine"),   QStringLiteral("Method")};
    return fixed.contains(path);
}

/// Those of them that are converted as attributes are.
bool isConverted(const QString& path)
{
    return path == QLatin1String("Name") || path == QLatin1String("Enable");
}

QString withoutBrackets(const JsonPath& path)
{
    QString text = path.text();
    text.replace(QLatin1String("[]."), QLatin1String("."));
    return text.endsWith(QLatin1String("[]")) ? text.chopped(2) : text;
}

QString joined(const QString& path, std::string_view name)
{
    const QString text = QString::fromUtf8(name.data(), static_cast<int>(name.size()));
    return path.isEmpty() ? text : path + QLatin1Char('.') + text;
}

const RuleProtocolItem* itemAt(const QVector<const RuleProtocolItem*>& items, int index)
{
    const auto found = std::find_if(items.begin(), items.end(),
                                    [index](const auto* item) { return item->index() == index; });
    return found == items.end() ? nullptr : *found;
}

} // namespace

bool EntryLoss::isSame(const Value& read, const Value& written)
{
    return hasAll(read, written, &isSameAlone);
}

/// A list added or missing is looked for on the first level that is no object alone: on each it
/// would take as many ways as there are levels of both.
bool EntryLoss::isKept(const Value& read, const Value& written)
{
    if (read.isObject() && written.isObject()) {
        bool areKept = true;
        for (int i = 0; areKept && i < read.size(); ++i)
            areKept = isKept(read.memberValue(i), written[read.memberName(i)]);
        return areKept;
    }
    if (hasAll(read, written, &isKeptAlone))
        return true;
    if (written.isArray() && written.size() == 1)
        return hasAll(read, written[0], &isKeptAlone);
    return read.isArray() && read.size() == 1 && hasAll(read[0], written, &isKeptAlone);
}

EntryLoss::EntryLoss(RuleData& data, const QString& section) : m_data(data)
{
    for (const auto& item : data.getTemplate()->items()) {
        if (item->templateName() != section || item->path().text().isEmpty())
            continue;
        QStringList paths{withoutBrackets(item->path())};
        if (item->drawType() == BaseDrawType::Parallelogram)
            paths.append(withoutBrackets(ConfigMember::directionPath()));
        for (const QString& path : qAsConst(paths)) {
            m_items[path].append(item.get());
            for (int dot = path.indexOf('.'); dot >= 0; dot = path.indexOf('.', dot + 1))
                m_stations.insert(path.left(dot));
        }
    }
}

void EntryLoss::compare(const RuleDataInfo& entry, const Value& read, const Value& written)
{
    m_entry = &entry;
    if (isSame(read, written))
        return;
    if (!read.isObject()) {
        const auto figures = m_data.getTemplate()->figureItems();
        return figures.isEmpty() || isKept(read, written) ? void() : tellItem(*figures.first());
    }
    tellMisfits(read, written);
    const bool mayDiffer = areSwapped(read, written);
    for (int i = 0; i < read.size(); ++i) {
        const std::string_view name = read.memberName(i);
        const bool isLine = name == ConfigMember::kLeftLine || name == ConfigMember::kRightLine;
        if (!isLine || !mayDiffer)
            compareMember(joined({}, name), read.memberValue(i), written[name]);
    }
}

/// What was kept to be saved as it was read, and is not.
void EntryLoss::tellMisfits(const Value& read, const Value& written)
{
    if (!m_entry->keepsAnything())
        return;
    for (const Items& items : qAsConst(m_items)) {
        for (const RuleProtocolItem* item : items) {
            // Elements of lists are matched by their kind, not by their place.
            const bool isInList = item->path().text().contains(QLatin1String("[]."));
            if (isInList || !m_entry->isMisfit(item->key()))
                continue;
            const Value* const before = item->path().find(read);
            const Value* const after = item->path().find(written);
            if (before && !(after && isSame(ValueConversion::element(*before, *item),
                                            ValueConversion::element(*after, *item))))
                tellItem(*item);
        }
    }
}

void EntryLoss::compareMember(const QString& path, const Value& read, const Value& written)
{
    if (isSame(read, written) || (isConverted(path) && isKept(read, written)))
        return;
    const auto items = m_items.constFind(path);
    if (items != m_items.constEnd())
        return compareItems(path, *items, read, written);
    const bool leadsOn = m_stations.contains(path);
    if (read.isObject() && (written.isObject() || leadsOn)) {
        for (int i = 0; i < read.size(); ++i) {
            const std::string_view name = read.memberName(i);
            compareMember(joined(path, name), read.memberValue(i), written[name]);
        }
        return;
    }
    // Attributes lie in the first element of such a list; the others are nobody's.
    if (!read.isArray() || !leadsOn || !read[0].isObject())
        return tellMember(path);
    compareMember(path, read[0], written[0]);
    for (int i = 1; i < read.size(); ++i) {
        if (!isSame(read[i], written[i]))
            return tellMember(path);
    }
}

void EntryLoss::compareItems(const QString& path, const Items& items, const Value& read,
                             const Value& written)
{
    const RuleProtocolItem* whole = itemAt(items, kNoIndex);
    const bool isList = read.isArray() && written.isArray();
    if ((whole || !isList) && isKept(read, written))
        return;
    if (!isList || (whole && whole->isFigure()))
        return tellItem(whole ? *whole : *items.first());
    for (int i = 0; i < read.size(); ++i) {
        const RuleProtocolItem* element = itemAt(items, i);
        const RuleProtocolItem* item = element ? element : whole;
        if (item ? isKept(read[i], written[i]) : isSame(read[i], written[i]))
            continue;
        item ? tellItem(*item) : tellMember(QStringLiteral("%1[%2]").arg(path).arg(i));
    }
}

void EntryLoss::tellItem(const RuleProtocolItem& item)
{
    m_data.saveNotices().add(SaveNotices::Kind::Changed, SaveNotices::subject(item), *m_entry,
                             item.key());
}

void EntryLoss::tellMember(const QString& path)
{
    const auto kind = isFixed(path) ? SaveNotices::Kind::Changed : SaveNotices::Kind::Unnamed;
    m_data.saveNotices().add(kind, QLatin1Char('"') + path + QLatin1Char('"'), *m_entry);
}
