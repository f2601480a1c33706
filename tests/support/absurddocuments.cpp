#include "tests/support/absurddocuments.h"

#include <QByteArrayList>

namespace
{

using AbsurdDocuments::list;
using AbsurdDocuments::rules;

/// Each applies for one value of the last.
QByteArray controls(int count)
{
    const QByteArray last = QByteArray::number(count - 1);
    return rules(list(count, R"({"key": "k%1", "protocol": {"name": "N%1", "type": "int"},
                                 "valid": {"controlKey": "k)" +
                                 last + R"(", "enumValue": "1"}, "depend": [{}]})"),
                 list(count, R"("k%1": {"describe": "K%1", "facade": "inputBoxNumber"})"), "{}");
}

QByteArray options(int count)
{
    return rules(R"({"key": "n", "protocol": {"name": "N", "type": "string"}})",
                 R"("n": {"facade": "checkbox", "enumeration": [)" +
                     list(count, R"({"value": "%1", "name": "n"})") + "]}",
                 R"({"N": []})");
}

QByteArray checks(int count)
{
    return rules(R"({"key": "n", "protocol": {"name": "N", "type": "int"}})", {}, R"({"N": 0})",
                 R"(, "checkValueControls": [)" + list(count, R"({"firstKey": "n",
                     "secondKey": "n", "rule": {"operator": "=="}})") +
                     "]");
}

QByteArray entries(int count)
{
    return R"({"R": [)" +
           list(count, R"({"Name": "%1", "Enable": true, "Area": [[0, 0], [%1, 0], [9, 9]]})") +
           "]}";
}

} // namespace

QByteArray AbsurdDocuments::list(int count, const QByteArray& text)
{
    QByteArrayList parts;
    for (int i = 0; i < count; ++i)
        parts.append(QByteArray(text).replace("%1", QByteArray::number(i)));
    return parts.join(',');
}

QStringList AbsurdDocuments::ofOneHash()
{
    constexpr int kBits = 18;
    QStringList texts;
    for (int number = 0; number < 1 << kBits; ++number) {
        QString text(kBits + 2, QLatin1Char('A'));
        QChar* next = text.data();
        for (int bit = 0; bit < kBits; ++bit, ++next) {
            if (((number >> bit) & 1) == 0)
                continue;
            next[0].unicode() ^= 0x76F1;
            next[1].unicode() ^= 0x05EC;
            next[2].unicode() ^= 0x0001;
        }
        texts.append(text);
    }
    return texts;
}

QByteArray AbsurdDocuments::rules(const QByteArray& controls, const QByteArray& details,
                                  const QByteArray& entry, const QByteArray& more)
{
    return R"({"configDescription": {"ruleDescription": {"rules": {"count": [0, 2000000000],
               "parent": "R[]", "controls": [)" +
           controls + "]" + more + R"(}}}, "configItems": {)" + details +
           R"(}, "configTemplate": {"R": [)" + entry + "]}}";
}

QByteArray AbsurdDocuments::areas()
{
    return rules(R"({"key": "area", "protocol": {"name": "Area[]", "type": "point"}})",
                 R"("area": {"describe": "Area", "facade": "region", "range": [3, 10]})",
                 R"({"Area": []})");
}

QByteArray AbsurdDocuments::oneRule(const QByteArray& members)
{
    return R"({"R": [{"Name": "A", "Enable": true, )" + members + "}]}";
}

std::vector<AbsurdDocuments::Pair> AbsurdDocuments::crowded(int count)
{
    const QByteArray points = "\"Area\": [" + list(60 * count, "[%1, 7]") + "]";
    const QByteArray texts = "\"N\": [" + list(count, "\"%1\"") + "]";
    const QByteArray parts = QByteArray("a[].").repeated(count) + "b";
    return {{"controls", controls(count), oneRule(list(count, "\"N%1\": %1"))},
            {"options", options(count), oneRule(texts)},
            {"checks", checks(count), oneRule("\"N\": 4")},
            {"entries", areas(), entries(count)},
            {"points", areas(), oneRule(points)},
            {"parts of a path", areas().replace("Area[]", parts), entries(count)}};
}
