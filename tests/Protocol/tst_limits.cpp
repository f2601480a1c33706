#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "host/gdiplus.h"
#include "host/reader.h"
#include "host/value.h"
#include "tests/support/rulestest.h"

#include <QImage>
#include <QPainter>
#include <ctime>
#include <functional>

using kql::Json::Value;

namespace
{

/// @p text with 0 to @p count - 1 in the place of %1, separated by commas.
QByteArray list(int count, const QByteArray& text)
{
    QByteArrayList parts;
    for (int i = 0; i < count; ++i)
        parts.append(QByteArray(text).replace("%1", QByteArray::number(i)));
    return parts.join(',');
}

/// A template of rules with these controls and their details.
QByteArray rules(const QByteArray& controls, const QByteArray& details, const QByteArray& entry,
                 const QByteArray& more = {})
{
    return R"({"configDescription": {"ruleDescription": {"rules": {"count": [0, 2000000000],
               "parent": "R[]", "controls": [)" +
           controls + "]" + more + R"(}}}, "configItems": {)" + details +
           R"(}, "configTemplate": {"R": [)" + entry + "]}}";
}

const QByteArray kArea = rules(
    R"({"key": "area", "protocol": {"name": "Area[]", "type": "point"}})",
    R"("area": {"describe": "Area", "facade": "region", "range": [3, 10]})", R"({"Area": []})");

QByteArray area(const QByteArray& range)
{
    return QByteArray(kArea).replace("[3, 10]", range);
}

QByteArray number(const QByteArray& details, const QByteArray& type = "int")
{
    return rules(R"({"key": "n", "protocol": {"name": "N", "type": ")" + type + "\"}}",
                 R"("n": {"describe": "N", "facade": "inputBoxNumber")" + details + "}",
                 R"({"N": null})");
}

/// A configuration of one rule with these members.
QByteArray oneRule(const QByteArray& members)
{
    return R"({"R": [{)" + members + "}]}";
}

QByteArray oneArea(const QByteArray& points)
{
    return oneRule("\"Area\": [" + points + "]");
}

QByteArray manyControls(int count)
{
    return rules(list(count, R"({"key": "k%1", "protocol": {"name": "N%1", "type": "int"},
                                 "valid": {"controlKey": "k9999", "enumValue": "1"},
                                 "depend": [{}]})"),
                 list(count, R"("k%1": {"describe": "K%1", "facade": "inputBoxNumber"})"), "{}");
}

QByteArray manyOptions(int count)
{
    return rules(R"({"key": "n", "protocol": {"name": "N", "type": "string"}})",
                 R"("n": {"facade": "checkbox", "enumeration": [)" +
                     list(count, R"({"value": "%1", "name": "n"})") + "]}",
                 R"({"N": []})");
}

QByteArray manyChecks(int count)
{
    return rules(R"({"key": "n", "protocol": {"name": "N", "type": "int"}})", {}, R"({"N": 0})",
                 R"(, "checkValueControls": [)" + list(count, R"({"firstKey": "n", "secondKey": "n",
                                     "rule": {"operator": "=="}})") +
                     "]");
}

QByteArray manyEntries(int count)
{
    return R"({"R": [)" + list(count, R"({"Name": "%1", "Area": [[0, 0], [%1, 0], [9, 9]]})") +
           "]}";
}

const QByteArray kPoints = R"("Area": [[100, 100], [4000, 100], [4000, 4000]])";

double seconds(const std::function<void()>& work)
{
    const std::clock_t start = std::clock();
    work();
    return double(std::clock() - start) / CLOCKS_PER_SEC;
}

} // namespace

/// Documents that no device sends: what becomes of them, and that it does not take long.
class TstLimits : public RulesTest
{
    Q_OBJECT

    RuleParser m_parser;

    RuleData& scene() { return *m_parser.getAllData().front(); }
    RuleDataInfo& entry() { return *scene().getAllData().front(); }
    BaseDraw& figure() { return *scene().getDrawScene()->getFirstDrawItem()->figure(); }
    Value written()
    {
        Value config;
        if (!m_parser.writeData(config))
            qWarning("not written");
        return config;
    }
    void read(const QByteArray& description, const QByteArray& config)
    {
        QVERIFY(m_parser.parseTemplate(QString::fromUtf8(description)));
        QVERIFY(m_parser.readData(QString::fromUtf8(config)));
    }

private slots:
    void takesNoLonger_data()
    {
        QTest::addColumn<QByteArray>("description");
        QTest::addColumn<QByteArray>("config");
        const auto row = [](const char* name, const QByteArray& description,
                            const QByteArray& config) {
            QTest::newRow(name) << description << config;
        };
        row("10,000 controls", manyControls(10000), oneRule(list(10000, "\"N%1\": %1")));
        row("10,000 options", manyOptions(10000),
            oneRule("\"N\": [" + list(10000, "\"%1\"") + "]"));
        row("10,000 checks", manyChecks(10000), oneRule("\"N\": 4"));
        row("10,000 entries", kArea, manyEntries(10000));
        row("100,000 points", kArea, oneArea(list(100000, "[%1, 7]")));
        row("a path of 10,000 parts",
            QByteArray(kArea).replace("Area[]", QByteArray("a[].").repeated(10000) + "b"), kArea);
    }

    void takesNoLonger()
    {
        QFETCH(QByteArray, description);
        QFETCH(QByteArray, config);
        const auto parse = [](const QByteArray& text) {
            Value document;
            QVERIFY(kql::Json::Reader().parse(QString::fromUtf8(text), document));
        };
        const double once = seconds([&] {
            parse(description);
            parse(config);
        });
        const double all = seconds([&] {
            read(description, config);
            QString message;
            scene().checkData(message);
            written();
        });
        QCOMPARE(written(), written());
        const QString said = QStringLiteral("%1 s in place of %2 s").arg(all).arg(once);
        QVERIFY2(all < 0.2 + 20 * once, qPrintable(said));
    }

    void numbersBeyondTheirTypes_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<QByteArray>("given");
        QTest::addColumn<QString>("written");
        const auto row = [](const char* type, const char* given, const char* kept) {
            QTest::addRow("%s as %s", given, type)
                << QByteArray(type) << QByteArray(given) << QString(kept);
        };
        row("int", "99999999999", "2147483647");
        row("int", "-1e300", "-2147483648");
        row("int", "123456789012345678901234567890", "2147483647");
        row("float", "1.7976931348623157e308", "1.7976931348623157e308");
        row("bool", "1e300", "true");
        row("string", "\"a\\u0000b\"", "\"a\\u0000b\"");
        row("array int", "[9, 3]", "[ 9, 3 ]");
        row("array int", "[1e99, -99999999999]", "[ 0, 0 ]");
        row("object", "{\"a\": 1e300}", "{ \"a\": 1e300 }");
    }

    void numbersBeyondTheirTypes()
    {
        QFETCH(QByteArray, type);
        QFETCH(QByteArray, given);
        QFETCH(QString, written);
        read(number({}, type), oneRule("\"N\": " + given));
        QCOMPARE(this->written()["R"][0]["N"].toStyledText().simplified(), written);
    }

    void countsAndRanges()
    {
        read(number(R"(, "range": [99999999999, -1e300], "default": 1e99)"), "{\"R\": []}");
        const RuleProtocolItem& item = *scene().getTemplate()->items().front();
        QCOMPARE(item.rangeMinimum(), QVariant(2147483647));
        QCOMPARE(item.rangeMaximum(), QVariant(-2147483647 - 1));
        QCOMPARE(scene().newDataInfo()->value("n"), QVariant(2147483647));
        QCOMPARE(scene().getTemplate()->countRange(), (CountRange{0, 2000000000}));
        QString message;
        QVERIFY(scene().checkData(message));
    }

    void pointLimits_data()
    {
        QTest::addColumn<QByteArray>("range");
        QTest::addColumn<int>("minimum");
        QTest::addColumn<int>("maximum");
        QTest::newRow("as given") << QByteArray("[3, 10]") << 3 << 10;
        QTest::newRow("reversed") << QByteArray("[10, 3]") << 3 << kAnyCount;
        QTest::newRow("negative") << QByteArray("[-7, -3]") << 3 << kAnyCount;
        QTest::newRow("minimum negative") << QByteArray("[-7, 5]") << 3 << 5;
        QTest::newRow("beyond int") << QByteArray("[1e99, 1e300]") << kAnyCount << kAnyCount;
        QTest::newRow("no pair") << QByteArray("[4]") << 3 << kAnyCount;
    }

    void pointLimits()
    {
        QFETCH(QByteArray, range);
        read(area(range), oneArea("[1, 2], [3, 4], [5, 9]"));
        QTEST(figure().minimumPointCount(), "minimum");
        QTEST(figure().maximumPointCount(), "maximum");
        QVERIFY(figure().isFinished());
    }

    /// Coordinates are kept as they are, wherever they lie; painting them ends.
    void coordinatesAndCanvases()
    {
        const QByteArray points =
            "[-1, 99999], [2147483647, -2147483648], [99999999999, 1e300], [0.9, 5]";
        for (const int size : {0, 1, 256, 32767}) {
            read(kArea, oneArea(points));
            DrawScene& canvas = *scene().getDrawScene();
            canvas.setCanvasSize(size, size);
            QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
            QPainter painter(&image);
            Gdiplus::Graphics graphics(&painter);
            canvas.draw(&graphics);
            canvas.setSelected(canvas.getFirstDrawItem()->itemId(), entry().id());
            canvas.redrawItem(canvas.getFirstDrawItem()->itemId());
            canvas.addDrawPoint(DrawScene::DrawMouseLeftPress, {2147483647, -1});
            canvas.draw(&graphics);
            QCOMPARE(graphics.GetLastStatus(), Gdiplus::Ok);
            QCOMPARE(figure().pointCount(), 1);
        }
        read(kArea, oneArea(points));
        QCOMPARE(written()["R"][0]["Area"].toStyledText().simplified(),
                 QStringLiteral("[ [ -1, 99999 ], [ 2147483647, -2147483648 ], "
                                "[ 2147483647, 2147483647 ], [ 0, 5 ] ]"));
    }

    void longTexts()
    {
        const QByteArray longText(1 << 20, 'x');
        const QByteArray description = QByteArray(kArea).replace("\"Area\"", '"' + longText + '"');
        read(description, oneRule("\"Name\": \"" + longText + "\", " + kPoints));
        QCOMPARE(entry().name().size(), longText.size());
        QCOMPARE(scene().getDrawScene()->getFirstDrawItem()->label().size(), longText.size());
        QCOMPARE(written()["R"][0]["Name"].asString().size(), longText.size());
        QImage image(256, 256, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        Gdiplus::Graphics graphics(&painter);
        scene().getDrawScene()->setCanvasSize(256, 256);
        const double once = seconds([&] { scene().getDrawScene()->draw(&graphics); });
        QVERIFY2(once < 2, qPrintable(QString::number(once)));
    }

    void refusedTexts_data()
    {
        QTest::addColumn<QByteArray>("config");
        QTest::newRow("too deep") << QByteArray("[").repeated(513) + QByteArray("]").repeated(513);
        QTest::newRow("beyond a double") << oneRule("\"N\": 1e999");
        QTest::newRow("lone surrogate") << oneRule("\"Name\": \"\\ud800\"");
        QTest::newRow("zero byte") << QByteArray("{\"R\": [\0]}", 11);
        QTest::newRow("empty") << QByteArray();
    }

    /// Refused as a whole: what was read before stays.
    void refusedTexts()
    {
        QFETCH(QByteArray, config);
        read(number({}), oneRule("\"Name\": \"first\", \"N\": 5"));
        const Value before = written();
        QVERIFY(!m_parser.readData(QString::fromUtf8(config)));
        QCOMPARE(scene().getDataCount(), 1);
        QCOMPARE(written(), before);
    }
};

QTEST_MAIN(TstLimits)
#include "tst_limits.moc"
