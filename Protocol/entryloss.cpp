#include "Protocol/entryloss.h"

#include "Protocol/configmember.h"
#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "Protocol/savenotices.h"
#include "Protocol/valueconversion.h"
#include "host/value.h"

#include <algorithm>

using kql::Json::Value;

namespace
{

constexpr int kNoIndex = -1;

bool isKeptAlone(const Value& read, const Value& written)
{
    if (read.isNumeric() && written.isNumeric())
        return read.isInt() && written.isInt() ? read == written
                                               : read.asDouble() == written.asDouble();
    if (read.isNumeric() && written.isBool())
        return read.asBool() == written.asBool();
    if (!read.isString() && written.isString())
        return ValueConversion::toText(read) == written.asString();
    return read == written;
}

/// A list may be added or missing around the whole, but in no list: to look for one on each level
/// would take as many ways as there are levels of both.
enum class Around { List, Nothing };

bool isKept(const Value& read, const Value& written, Around around);

bool elementsAreKept(const Value& read, const Value& written)
{
    for (int i = read.size(); i < written.size(); ++i) {
        if (!written[i].isNull())
            return false;
    }
    for (int i = 0; i < read.size(); ++i) {
        if (!isKept(read[i], written[i], Around::Nothing))
            return false;
    }
    return true;
}

bool membersAreKept(const Value& read, const Value& written, Around around)
{
    for (int i = 0; i < read.size(); ++i) {
        if (!isKept(read.memberValue(i), written[read.memberName(i)], around))
            return false;
    }
    return true;
}

bool isKept(const Value& read, const Value& written, Around around)
{
    if (read.isNull())
        return true;
    if (read.isObject() && written.isObject())
        return membersAreKept(read, written, around);
    if (read.isArray() && written.isArray() && elementsAreKept(read, written))
        return true;
    if (around == Around::List && written.isArray() && written.size() == 1)
        return isKept(read, written[0], Around::Nothing);
    if (around == Around::List && read.isArray() && read.size() == 1)
        return isKept(read[0], written, Around::Nothing);
    return isKeptAlone(read, written);
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

bool EntryLoss::isKept(const Value& read, const Value& written)
{
    return ::isKept(read, written, Around::List);
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
    if (isKept(read, written))
        return;
    if (!read.isObject()) {
        const auto figures = m_data.getTemplate()->figureItems();
        return figures.isEmpty() ? void() : tellItem(*figures.first());
    }
    const bool mayDiffer = areSwapped(read, written);
    for (int i = 0; i < read.size(); ++i) {
        const std::string_view name = read.memberName(i);
        const bool isLine = name == ConfigMember::kLeftLine || name == ConfigMember::kRightLine;
        if (!isLine || !mayDiffer)
            compareMember(joined({}, name), read.memberValue(i), written[name]);
    }
}

void EntryLoss::compareMember(const QString& path, const Value& read, const Value& written)
{
    const auto items = m_items.constFind(path);
    const bool leadsOn = m_stations.contains(path);
    if (items != m_items.constEnd())
        return isKept(read, written) ? void() : compareItems(path, *items, read, written);
    if (read.isObject() && (written.isObject() || leadsOn)) {
        for (int i = 0; i < read.size(); ++i) {
            const std::string_view name = read.memberName(i);
            compareMember(joined(path, name), read.memberValue(i), written[name]);
        }
        return;
    }
    if (isKept(read, written))
        return;
    // Attributes lie in the first element of such a list; the others are nobody's.
    if (!read.isArray() || !leadsOn || !read[0].isObject())
        return tellMember(path);
    compareMember(path, read[0], written[0]);
    for (int i = 1; i < read.size(); ++i) {
        if (!isKept(read[i], written[i]))
            return tellMember(path);
    }
}

void EntryLoss::compareItems(const QString& path, const Items& items, const Value& read,
                             const Value& written)
{
    const RuleProtocolItem* whole = itemAt(items, kNoIndex);
    if (!read.isArray() || !written.isArray() || (whole && whole->isFigure()))
        return tellItem(whole ? *whole : *items.first());
    for (int i = 0; i < read.size(); ++i) {
        if (isKept(read[i], written[i]))
            continue;
        const RuleProtocolItem* item = itemAt(items, i);
        if (!item && !whole)
            return tellMember(path);
        tellItem(item ? *item : *whole);
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
