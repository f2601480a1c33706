#include "host/api/dprintlog.h"
#include "host/json/reader.h"
#include "host/json/value.h"
#include "tests/support/fixtures.h"
#include "tests/support/rulestest.h"

#include <functional>
#include <limits>
#include <vector>

using kql::Json::Reader;
using kql::Json::Value;
using kql::Json::ValueType;

namespace
{

Value parsed(const QByteArray& text)
{
    Value root;
    Reader reader;
    const std::string_view utf8(text.constData(), std::size_t(text.size()));
    if (!reader.parse(utf8, root))
        qCritical("%s refused: %s", text.left(60).constData(), qPrintable(reader.errorText()));
    return root;
}

QByteArray nested(int depth)
{
    return QByteArray(depth, '[') + QByteArray(depth, ']');
}

/// All typed reads of one value in one line: bool, int, int64, double, text.
QString reads(const Value& value)
{
    return QStringLiteral("%1 %2 %3 %4 '%5'")
        .arg(int(value.asBool()))
        .arg(value.asInt())
        .arg(value.asInt64())
        .arg(value.asDouble(), 0, 'g', 17)
        .arg(value.asString());
}

} // namespace

class TstJson : public RulesTest
{
    Q_OBJECT

private slots:
    void readsAreTotal_data() { Fixtures::addRows("jsonreads.json"); }

    void readsAreTotal()
    {
        QFETCH(const Value, fixture);
        const QByteArray text = QByteArray(QTest::currentDataTag()).mid(qstrlen("jsonreads: "));
        const Value value = parsed(text);
        QCOMPARE(reads(value), fixture.asString());
        const bool isArray = text.startsWith('[');
        const bool isObject = text.startsWith('{');
        QCOMPARE(value.size(), isArray || isObject ? 1 : 0);
        QCOMPARE(value[0].asInt(), isArray ? 1 : 0);
        QCOMPARE(value["a"].asInt(), isObject ? 1 : 0);
        QCOMPARE(value.isMember("a"), isObject);
        QVERIFY_BOTH(value[-1].isNull(), value[1].isNull());
        QVERIFY(value["b"][3]["c"].isNull());
        QVERIFY_BOTH(value.memberName(1).empty(), value.memberValue(-1).isNull());
        QCOMPARE(value.memberNames().size(), isObject ? 1 : 0);
    }

    void refusesText()
    {
        const auto row = [](const char* name, const QByteArray& text, int line, int column) {
            Value root(5);
            Reader reader;
            const std::string_view utf8(text.constData(), std::size_t(text.size()));
            QVERIFY2(!reader.parse(utf8, root), name);
            QVERIFY2(root.isNull(), name);
            QVERIFY2(!reader.errorText().isEmpty(), name);
            QVERIFY2(reader.errorLine() == line, name);
            QVERIFY2(reader.errorColumn() == column, name);
            QVERIFY(reader.parse(QStringLiteral("[]"), root));
            QVERIFY_BOTH(reader.errorText().isEmpty(), reader.errorLine() == 0);
        };
        row("empty", "", 1, 1);
        row("comment alone", "/* [] */", 1, 9);
        row("text after root", "{}\n x", 2, 2);
        row("NUL after root", QByteArray("[] \0[", 5), 1, 4);
        row("open object", "{\"a\": 1,\n", 2, 1);
        row("open comment", "[] /* a", 1, 8);
        row("comma at the end", "[1,]", 1, 4);
        row("NaN", "[NaN]", 1, 2);
        row("infinity", "[-Infinity]", 1, 3);
        row("beyond a double", "[1, 100000e308]", 1, 5);
        row("very many digits", QByteArray(400, '9'), 1, 1);
        row("broken UTF-8", "[\n\"a\xFF\"]", 2, 3);
        row("encoded surrogate", "\"\xED\xA0\x80\"", 1, 2);
        row("too large a code point", "\"\xF4\x90\x80\x80\"", 1, 2);
        row("lone low surrogate", "\"\\udc00\"", 1, 9);
        row("lone high surrogate", "\"\\ud800\"", 1, 2);
        row("control character", "\"a\nb\"", 1, 3);
        row("too deep", nested(513), 1, 513);
        row("a million brackets", QByteArray(1000000, '['), 1, 513);
        row("a million objects", QByteArray("{\"a\":").repeated(1000000), 1, 512 * 5 + 1);
    }

    void writesWhatItReads()
    {
        for (const char* text :
             {"1.0", "-0.0", "0.1", "1e21", "5e-324", "2.2250738585072014e-308",
              "123456789012345680.0", "1.7976931348623157e308", "9223372036854775807",
              "-9223372036854775808", "\"\"", "\"fourteen chars\"", "\"fifteen chars..\"", "[]",
              "{}", "\"a\\u0000\\n\\\"\\\\/\"",
              "{\"z\":[{},[],null],\"a\":{\"\":1,\"\\u00e4\":[true,2,2.5]},\"m\":\"\\u2028\"}"}) {
            const Value value = parsed(text);
            const std::string written = value.toStyledString();
            const Value again = parsed(QByteArray::fromStdString(written));
            QVERIFY2(again == value, text);
            QCOMPARE(again.toStyledString(), written);
            QCOMPARE(parsed(value.toCompactText().toUtf8()), value);
        }
        for (const char* text : {"9223372036854775808", "18446744073709551615"})
            QCOMPARE(parsed(text).toCompactText(), QString(text));
    }

    void acceptsCommentsMarkAndDepth()
    {
        const Value value =
            parsed("\xEF\xBB\xBF// one\n{ /* two **/ \"a\" : [ 1 // three\n ] } // four");
        QCOMPARE(value["a"][0].asInt(), 1);
        int depth = 0;
        const Value deep = parsed(nested(512));
        for (const Value* level = &deep; level->isArray(); level = &(*level)[0])
            ++depth;
        QCOMPARE(depth, 512);
        QVERIFY(parsed(QByteArray::fromStdString(deep.toStyledString())) == deep);
        const Value list = parsed(nested(500).insert(500, QByteArray("1,").repeated(1000) + '1'));
        const QString text = list.toStyledText();
        QVERIFY_BOTH(text.size() < 300000, parsed(text.toUtf8()) == list);
        QCOMPARE(list.styledLength(), qint64(text.size()));
    }

    void writesMakeTheirKind()
    {
        Value value;
        value["a"]["b"][2] = "x";
        value["nan"] = std::numeric_limits<double>::quiet_NaN();
        value["list"].append(1);
        value["list"].append(value["list"]);
        const auto expected = R"({"a":{"b":[null,null,"x"]},"nan":null,"list":[1,[1]]})";
        QCOMPARE(value.toCompactText(), QString(expected));
        QVERIFY(parsed(QByteArray::fromStdString(value.toStyledString())) == parsed(expected));

        Value& list = value["list"];
        list[-1] = 5;
        list[2000000000] = 5;
        list[std::size_t(-1)] = 5;
        QCOMPARE(list.size(), 2);
        list.clear();
        QVERIFY_BOTH(list.isArray(), list.empty());
        value["a"]["b"]["now"] = 1;
        QVERIFY(value["a"]["b"] == parsed(R"({"now":1})"));
    }

    void lastOfDuplicatesCountsInPlaceOfFirst()
    {
        const Value value = parsed(R"({"a":[1],"a long name, not in place":1,"b":2,"a":"three",
                                       "a long name, not in place":4})");
        QCOMPARE(value.memberNames().join(QLatin1Char(' ')),
                 QStringLiteral("a a long name, not in place b"));
        QCOMPARE(value["a"].asString(), QStringLiteral("three"));
        QCOMPARE(value["a long name, not in place"].asInt(), 4);
    }

    /// All names begin to look for their place in an eighth of a table of known hashes, which
    /// fills it. Each compared with all before it takes minutes.
    void largeObjectsKeepOrderAndNames()
    {
        const int count = 400000;
        std::vector<std::string> names;
        QByteArray text = R"({"twice":1,"twice":2)";
        Value built;
        for (int i = 0; int(names.size()) < count; ++i) {
            const std::string name = std::to_string(i);
            if (std::hash<std::string_view>()(name) % 1048576 >= 131072)
                continue;
            text += ",\"" + QByteArray::fromStdString(name) + "\":" + QByteArray::number(i);
            if (names.size() < 50000)
                built[name] = i;
            names.push_back(name);
        }
        Value value = parsed(text + '}');
        QCOMPARE(value.size(), count + 1);
        QVERIFY(parsed(built.toStyledText().toUtf8()) == built);
        value.removeMember(names[100]);
        for (std::size_t i = 101; i < names.size(); ++i)
            QCOMPARE(std::to_string(value[names[i]].asInt()), names[i]);
        QVERIFY_BOTH(value.memberName(101) == names[101], !value.isMember(names[100]));
    }

    void copiesAreIndependent()
    {
        const Value before = parsed(R"({"list":[{"text":"a text that is shared by copies"}]})");
        Value original = before;
        Value copy = original;
        copy["list"][0]["text"] = "other";
        QVERIFY(original == before);
        const Value part = std::move(original["list"]);
        QVERIFY(original["list"].isNull());
        original = Value();
        QVERIFY(part == before["list"]);
    }

    void comparesByKindAndName()
    {
        QVERIFY(parsed(R"({"a":1,"b":[2]})") == parsed(R"({"b":[2],"a":1})"));
        QVERIFY_BOTH(parsed(R"({"a":1})") != parsed(R"({"b":1})"),
                     parsed("[1,2]") != parsed("[2,1]"));
        QVERIFY_BOTH(Value(2) != Value(2.0), Value(1) != Value(true));
        QVERIFY(Value("1") != Value(1));
        QVERIFY_BOTH(Value(-0.0) == Value(0.0), Value(ValueType::String) == Value(""));
        QVERIFY_BOTH(Value() != Value(ValueType::Array), Value(ValueType::Object) != Value());
    }

    void partsReplaceTheirWhole()
    {
        Value value = parsed(R"({"a":{"b":["a text that is shared by copies",{"c":1}]}})");
        value["a"]["whole"] = value["a"];
        QCOMPARE(value["a"]["whole"]["b"].size(), 2);
        value["a"] = value["a"]["b"];
        QVERIFY(value == parsed(R"({"a":["a text that is shared by copies",{"c":1}]})"));
        Value& list = value["a"];
        for (int i = 0; i < 40; ++i)
            list.append(list[i]);
        QCOMPARE(list[40].asString(), QStringLiteral("a text that is shared by copies"));
        value = std::move(value["a"][41]);
        value = *&value;
        QCOMPARE(value["c"].asInt(), 1);
    }

    void acceptsEveryLengthOfUtf8()
    {
        for (const char* text :
             {"\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
              "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
            for (int shift = 0; shift < 9; ++shift) {
                const QByteArray content = QByteArray(shift, 'x') + text;
                QCOMPARE(QByteArray::fromStdString(parsed('"' + content + '"').asStdString()),
                         content);
            }
        }
    }

    void readsIntoTheValueThatHoldsTheText()
    {
        Value value = parsed("[\"[\\\"a text that is not held in place\\\"]\"]");
        Reader reader;
        QVERIFY(reader.parse(value[0].asView(), value));
        QCOMPARE(value[0].asString(), QStringLiteral("a text that is not held in place"));
    }

    void logTakesArgumentsAsText()
    {
        using Log = kql::DPrintLog;
        QCOMPARE(Log::formatted("ReadPath failed.Path:%d", QStringLiteral("%s/%n")),
                 QStringLiteral("ReadPath failed.Path:%s/%n"));
        QCOMPARE(
            Log::formatted("%s|%-5.2lf|%lld|%08x|%s", "c", 0.25, qint64(-1), 10u, std::string("é")),
            QStringLiteral("c|0.25|-1|10|é"));
        QCOMPARE(Log::formatted("100%% of %d, %d", 1), QStringLiteral("100% of 1, %d"));
        QCOMPARE(Log::formatted("%", 1), QStringLiteral("%"));
    }
};

QTEST_GUILESS_MAIN(TstJson)
#include "tst_json.moc"
