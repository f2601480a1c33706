#include "Protocol/datatemplate.h"
#include "Protocol/entryid.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "host/api/limits.h"
#include "host/gdiplus.h"
#include "host/json/reader.h"
#include "tests/support/absurddocuments.h"
#include "tests/support/fixtures.h"
#include "tests/support/rulestest.h"

#include <QFile>
#include <QRegularExpression>

using kql::Json::Value;

namespace
{

using AbsurdDocuments::areas;
using AbsurdDocuments::oneRule;

constexpr int kLong = 1 << 20;

QByteArray number(const QByteArray& details, const QByteArray& type = "int")
{
    return AbsurdDocuments::rules(
        R"({"key": "n", "protocol": {"name": "N", "type": ")" + type + "\"}}",
        R"("n": {"describe": "N", "facade": "inputBoxNumber")" + details + "}", R"({"N": null})");
}

QByteArray oneArea(const QByteArray& points)
{
    return oneRule("\"Area\": [" + points + "]");
}

QByteArray nested(int depth)
{
    return QByteArray("[").repeated(depth) + QByteArray("]").repeated(depth);
}

/// Indented, it is a hundred times as long.
QByteArray deep()
{
    return nested(400).insert(400, QByteArray("0,").repeated(kLong * 2) + '0');
}

/// Attributes of one key that share a place.
QByteArray sharing(const QByteArray& type, const QByteArray& facade)
{
    const QByteArray control = R"({"key": "n", "protocol": {"name": "N", "type": ")";
    return AbsurdDocuments::rules(AbsurdDocuments::list(1000, control + type + "\"}}"),
                                  R"("n": {"facade": ")" + facade + "\"}", R"({"N": 0})");
}

/// An attribute that applies while a list has one of @p count values.
QByteArray conditional(int count)
{
    return AbsurdDocuments::rules(
        R"({"key": "n", "protocol": {"name": "N", "type": "string"}}, {"key": "m",
            "protocol": {"name": "M", "type": "int"}, "valid": {"controlKey": "n",
            "enumValueArray": [)" +
            AbsurdDocuments::list(count, R"("a%1")") + "]}}",
        {}, R"({"N": []})");
}

/// @p count attributes, each for one of the texts of a list.
QByteArray choosing(int count)
{
    return AbsurdDocuments::rules(AbsurdDocuments::list(count, R"({"key": "%1",
            "protocol": {"name": "N", "type": "string", "index": %1}})"),
                                  AbsurdDocuments::list(count, R"("%1": {"facade": "radioButton",
            "enumeration": [{"value": "a"}]})"),
                                  "{}");
}

QByteArray quoted(const QStringList& texts)
{
    return '"' + texts.join("\", \"").toUtf8() + '"';
}

/// An element that an entry gets only when it is written: its place is another attribute's, too.
QByteArray laterElement()
{
    return AbsurdDocuments::rules(
        R"({"key": "o", "protocol": {"name": "N.O", "type": "object"}},
           {"key": "n", "protocol": {"name": "N", "type": "int", "index": 1000}})",
        {}, R"({"N": null})");
}

} // namespace

/// Documents that no device sends, and what becomes of them.
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

    /// Paints the scene on a canvas of that size, of which a picture shows a part.
    Gdiplus::Status painted(int size)
    {
        QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        Gdiplus::Graphics graphics(&painter);
        scene().getDrawScene()->setCanvasSize(size, size);
        scene().getDrawScene()->draw(&graphics);
        return graphics.GetLastStatus();
    }

    static void row(const char* name, const QByteArray& description, const QByteArray& config,
                    const char* why)
    {
        QTest::newRow(name) << description << config << QString(why);
    }

    static void addTemplates()
    {
        const auto parts =
            "The template has more than 1000 attributes or 5000 choices in one section.";
        const auto many = AbsurdDocuments::crowded(1000);
        row("attributes", AbsurdDocuments::crowded(1001)[0].description, "{}", parts);
        row("choices", AbsurdDocuments::crowded(5001)[1].description, "{}", parts);
        const QByteArray shared = R"({"key": "n", "protocol": {"name": "N", "type": "string"}})";
        row("choices in many attributes",
            QByteArray(many[1].description)
                .replace(shared, shared + QByteArray(", " + shared).repeated(5)),
            "{}", parts);
        row("a choice that is long when it is indented",
            number(R"(, "facade": "radioButton", "enumeration": [{"value": {"a": )" + deep() +
                   "}}]"),
            "{}", parts);
    }

    static void addEntries()
    {
        const auto many = AbsurdDocuments::crowded(1000);
        const QByteArray empty = R"({"R": [)" + AbsurdDocuments::list(9000, "{}") + "]}";
        const auto entries = "The configuration has 9000 entries under \"R[]\"; at most %1 can be "
                             "edited.";
        row("attributes in entries", many[0].description, empty, entries);
        row("checks in entries", many[2].description, empty, entries);
        row("a prototype in entries",
            areas().replace("\"Area\": []", "\"a\": \"" + QByteArray(kLong / 64, 'x') + '"'), empty,
            entries);
        row("elements in entries", laterElement(),
            R"({"R": [)" + AbsurdDocuments::list(9000, R"({"N": []})") + "]}", entries);
        row("entries of two sections",
            areas()
                .replace("\"rules\"", "\"detectArea\": {\"parent\": \"R[]\"}, \"rules\"")
                .replace("\"Area\": []", "\"a\": \"" + QByteArray(kLong / 64, 'x') + '"'),
            R"({"R": [)" + AbsurdDocuments::list(2500, "{}") + "]}",
            "The configuration has 2500 entries under \"R[]\"; at most %1 can be edited.");
        row("entries", areas(), R"({"R": [)" + AbsurdDocuments::list(3001, "{}") + "]}",
            "The configuration has 3001 entries under \"R[]\"; at most 3000 can be edited.");
        row("figures in an entry",
            R"({"configDescription": {"fightCalibrate": {"parent": "R"}}, "configTemplate": {}})",
            R"({"R": {"CalibrateArea": {"Area": [[1, 1], [9, 1], [9, 9]], "Rects": [)" +
                AbsurdDocuments::list(3000, "[[1, 1], [5, 5]]") + "]}}}",
            "The configuration has 3001 entries under \"R\"; at most 3000 can be edited.");
    }

    /// What the attributes of few entries would read.
    static void addReads()
    {
        const auto reads =
            "The attributes read too much of what the configuration has under \"R[]\".";
        row("attributes with one text", sharing("string", "inputBoxNumber"),
            oneRule("\"N\": \"" + QByteArray(70'000, 'x') + '"'), reads);
        row("an object that is long when it is indented", number({}, "object"),
            oneRule("\"N\": " + deep()), reads);
        const QByteArray points = '[' + AbsurdDocuments::list(200'000, "[%1, 7]") + ']';
        row("points", areas(), oneRule("\"Area\": " + points), reads);
        row("points of a calibrated area",
            R"({"configDescription": {"calibrateArea": {"parent": "R[]"}}, "configTemplate": {}})",
            R"({"R": [{"Area": )" + points + "}]}", reads);
        row("attributes with one direction", sharing("point", "parallelogram"),
            oneRule(R"("N": [[1, 1], [9, 1], [9, 9], [1, 9]], "Config": {"Direction": )" + points +
                    '}'),
            reads);
        row("attributes with one figure", sharing("point", "region"),
            oneRule("\"N\": [" + AbsurdDocuments::list(1100, "[%1, 7]") + ']'), reads);
    }

private slots:
    /// The page's table names the numbers of host/api/limits.h, row by row.
    void pageOfLimits()
    {
        using namespace Limits;
        constexpr int kMillion = 1 << 20;
        const QVector<QVector<qint64>> rows{
            {kMessageText},
            {kChoiceText, kAttributes, kChoices},
            {kEntries},
            {kSceneText},
            {kFigureText, kPointText, kValueText, kSceneText},
            {kStyledText, kIndentedLevels},
            {kJsonText, kJsonDepth},
            {kCreatedParts, kElements},
            {kLine, kTip, kLabel, kHint, kBoxLines},
            {kInput},
            {kCorrectedPoints},
            {kSmoothPoints, kSmoothEdges, kShadedEdges},
        };
        QFile page(QStringLiteral(RULES_SOURCE_DIR "/docs/reliability.md"));
        QVERIFY(page.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(page.readAll());
        const QString table = text.section(QStringLiteral("| Of | At most | Then |\n"), 1);
        const QStringList lines = table.section(QStringLiteral("\n\n"), 0, 0).split('\n').mid(1);
        QCOMPARE(lines.size(), rows.size());
        const QRegularExpression number(QStringLiteral("(\\d[\\d,]*)( million| MB)?"));
        for (int i = 0; i < lines.size(); ++i) {
            QVector<qint64> told;
            for (auto found = number.globalMatch(lines[i]); found.hasNext();) {
                const auto match = found.next();
                const qint64 value = match.captured(1).remove(',').toLongLong();
                told.append(match.captured(2).isEmpty() ? value : value * kMillion);
            }
            QVERIFY2(told == rows[i], qPrintable(lines[i]));
        }
    }

    void crowds_data()
    {
        QTest::addColumn<QByteArray>("description");
        QTest::addColumn<QByteArray>("config");
        for (const auto& pair : AbsurdDocuments::crowded(1000))
            QTest::newRow(pair.name.constData()) << pair.description << pair.config;
    }

    /// Taken as they are: checked, painted, and written as they were read.
    void crowds()
    {
        QFETCH(QByteArray, description);
        QFETCH(QByteArray, config);
        read(description, config);
        const bool isPath = description.contains("a[].a[]."); // leads to nothing
        QString message;
        scene().checkData(message);
        QCOMPARE(message, isPath ? QString("Please draw 1 Area.") : QString());
        QCOMPARE(painted(256), Gdiplus::Ok);
        Value asRead;
        QVERIFY(kql::Json::Reader().parse(QString::fromUtf8(config), asRead));
        QCOMPARE(written() == asRead, !isPath);
        QCOMPARE(written()["R"].size(), asRead["R"].size());
    }

    void tooMuch_data()
    {
        QTest::addColumn<QByteArray>("description");
        QTest::addColumn<QByteArray>("config");
        QTest::addColumn<QString>("why");
        addTemplates();
        addEntries();
        addReads();
    }

    /// Short documents that ask for very much together are refused before it is made.
    void tooMuch()
    {
        QFETCH(QByteArray, description);
        QFETCH(QByteArray, config);
        QFETCH(QString, why);
        QString said;
        const bool isRead = m_parser.parseTemplate(QString::fromUtf8(description), said) &&
                            m_parser.readData(QString::fromUtf8(config), said);
        QVERIFY(!isRead);
        const auto most = QRegularExpression("most ([0-9]{2,4}) can").match(said).captured(1);
        QCOMPARE(said, why.contains("%1") ? why.arg(most) : why);
        for (const auto& refused : m_parser.getAllData())
            QVERIFY_BOTH(refused->getDataCount() == 0,
                         !refused->getDrawScene()->getFirstDrawItem());
    }

    /// Every value of one long list is looked for in another one, whose values share a hash.
    void longConditions()
    {
        const QByteArray others = quoted(AbsurdDocuments::ofOneHash());
        const QByteArray description = conditional(20'000);
        read(description, oneRule("\"N\": [" + others + ']'));
        QVERIFY(!entry().isValid("m"));
        read(description, oneRule("\"N\": [" + others + ", \"a19999\"]"));
        QVERIFY(entry().isValid("m"));
    }

    /// All that the attributes of many entries choose shares a hash.
    void longChoices()
    {
        QByteArrayList rules;
        for (auto texts = AbsurdDocuments::ofOneHash(); !texts.isEmpty(); texts = texts.mid(1000))
            rules.append("{\"N\": [" + quoted(texts.mid(0, 1000)) + "]}");
        read(choosing(1000), "{\"R\": [" + rules.join(", ") + "]}");
        QCOMPARE(entry().value("999").toString().size(), 20);
    }

    void counts_data() { Fixtures::addRows("limits/counts.json"); }

    void counts()
    {
        QFETCH(const Value, fixture);
        const QByteArray description = R"({"configDescription": {"lanes": {"parent": "Lanes[]",
            "countOfLane": )" + fixture["range"].toCompactText().toUtf8() +
                                       R"(}}, "configTemplate": {"Lanes": []}})";
        read(description, R"({"Lanes": []})");
        QString message;
        const bool isAllowed = scene().checkData(message);
        QCOMPARE(message, fixture["message"].asString());
        QCOMPARE(isAllowed, message.isEmpty());
        QCOMPARE(written().toStyledText().simplified(), QString("{ \"Lanes\": [] }"));
    }

    void valuesBeyondTheirTypes_data() { Fixtures::addRows("limits/values.json"); }

    void valuesBeyondTheirTypes()
    {
        QFETCH(const Value, fixture);
        const auto text = [&](const char* name) { return fixture[name].asString(); };
        read(number({}, text("type").toUtf8()), oneRule("\"N\": " + text("given").toUtf8()));
        QCOMPARE(written()["R"][0]["N"].toStyledText().simplified(), text("written"));
    }

    /// Elements are made up to an index, but not without end in all fields of an entry together.
    void elements()
    {
        const auto control = R"({"key": "k%1", "protocol": {"name": "N%1", "type": "int",
                                 "index": 1000}})";
        read(AbsurdDocuments::rules(AbsurdDocuments::list(9, control),
                                    AbsurdDocuments::list(9, R"("k%1": {"facade": "bool"})"), {}),
             R"({"R": [{}]})");
        const Value made = written()["R"][0];
        QCOMPARE(made["N0"].size(), 1001);
        for (int field = 1; field < 9; ++field)
            QVERIFY(made.memberValue(field).isNull());
    }

    void reversedRange()
    {
        read(number(R"(, "range": [99999999999, -1e300], "default": 1e99)"), "{\"R\": []}");
        const RuleProtocolItem& item = *scene().getTemplate()->items().front();
        QCOMPARE(item.rangeMinimum(), QVariant(2147483647));
        QCOMPARE(item.rangeMaximum(), QVariant(-2147483647 - 1));
        QCOMPARE(scene().newDataInfo()->value("n"), QVariant(2147483647));
        QString message;
        QVERIFY(scene().checkData(message));
    }

    void ids()
    {
        QCOMPARE(EntryId::after(0), 1);
        QCOMPARE(EntryId::after(2147483646), 2147483647);
        QCOMPARE(EntryId::after(2147483647), 1);
    }

    void pointLimits_data() { Fixtures::addRows("limits/pointlimits.json"); }

    void pointLimits()
    {
        QFETCH(const Value, fixture);
        const auto limit = [&](const char* name) {
            return fixture.isMember(name) ? fixture[name].asInt() : kAnyCount;
        };
        read(areas().replace("[3, 10]", fixture["range"].toCompactText().toUtf8()),
             oneArea("[1, 2], [3, 4], [5, 9]"));
        QCOMPARE(figure().minimumPointCount(), limit("minimum"));
        QCOMPARE(figure().maximumPointCount(), limit("maximum"));
        QVERIFY(figure().isFinished());
    }

    /// Coordinates are kept as they are, wherever they lie; painting them ends.
    void coordinatesAndCanvases()
    {
        const QByteArray points =
            "[-1, 99999], [2147483647, -2147483648], [99999999999, 1e300], [0.9, 5]";
        for (const int size : {0, 1, 256, 32767}) {
            read(areas(), oneArea(points));
            QCOMPARE(painted(size), Gdiplus::Ok);
            DrawScene& canvas = *scene().getDrawScene();
            canvas.setSelected(canvas.getFirstDrawItem()->itemId(), entry().id());
            canvas.redrawItem(canvas.getFirstDrawItem()->itemId());
            canvas.addDrawPoint(DrawScene::DrawMouseLeftPress, {2147483647, -1});
            QCOMPARE(painted(size), Gdiplus::Ok);
            QCOMPARE(figure().pointCount(), 1);
        }
        read(areas(), oneArea(points));
        QCOMPARE(written()["R"][0]["Area"].toStyledText().simplified(),
                 QString("[ [ -1, 99999 ], [ 2147483647, -2147483648 ], "
                         "[ 2147483647, 2147483647 ], [ 0, 5 ] ]"));
    }

    void longTexts()
    {
        const QByteArray longText(kLong, 'x');
        const QByteArray description = areas().replace("\"Area\"", '"' + longText + '"');
        read(description, oneRule(R"("Area": [[100, 100], [4000, 100], [4000, 4000]])")
                              .replace("\"A\"", '"' + longText + '"'));
        QCOMPARE(entry().name().size(), kLong);
        QCOMPARE(scene().getDrawScene()->getFirstDrawItem()->label().size(), kLong);
        QCOMPARE(written()["R"][0]["Name"].asString().size(), kLong);
        QCOMPARE(painted(256), Gdiplus::Ok);
        scene().getDrawScene()->redrawItem(scene().getDrawScene()->getFirstDrawItem()->itemId());
        QCOMPARE(painted(256), Gdiplus::Ok); // with the hint, which has the name in it
    }

    void refusedTexts_data()
    {
        QTest::addColumn<QString>("text");
        const auto row = [](const char* name, const QByteArray& text) {
            QTest::newRow(name) << QString::fromUtf8(text);
        };
        row("too deep", oneRule("\"Name\": " + nested(511)));
        row("beyond a double", oneRule("\"N\": 1e999"));
        row("lone surrogate, escaped", oneRule("\"Name\": \"\\ud800\""));
        row("zero byte", QByteArray("{\"R\": [\0]}", 10));
        row("zero byte in a text", QByteArray("{\"R\": \"\0\"}", 10));
        row("empty", {});
        row("cut off", oneRule("\"N\": 5").chopped(2));
    }

    /// Refused as a whole, as a configuration and as a template: what was read before stays.
    void refusedTexts()
    {
        QFETCH(QString, text);
        read(number({}), oneRule("\"N\": 5"));
        const Value before = written();
        QString config;
        QVERIFY_BOTH(!m_parser.readData(text, config), !config.isEmpty());
        QCOMPARE(scene().getDataCount(), 1);
        QCOMPARE(written(), before);
        const QString description = QString::fromUtf8(number({}));
        QString why;
        QVERIFY(
            !m_parser.parseTemplate(QString(description).insert(1, "\"a\": " + text + ","), why));
        QVERIFY_BOTH(!why.isEmpty(), why != config);
        QVERIFY(m_parser.getAllData().empty());
    }

    /// The deepest that is read, and a surrogate alone, which no text in UTF-8 can hold.
    void oddTexts()
    {
        read(number({}, "object"), oneRule("\"N\": " + nested(509)));
        QCOMPARE(written()["R"][0]["N"].toStyledText().count('['), 509);
        const QString lone = QChar(0xD800);
        QVERIFY(m_parser.parseTemplate(QString::fromUtf8(number({}))));
        QVERIFY(m_parser.readData(QStringLiteral(R"({"R": [{"Name": "a%1"}]})").arg(lone)));
        QCOMPARE(entry().name(), QString("a?"));
    }
};

QTEST_MAIN(TstLimits)
#include "tst_limits.moc"
