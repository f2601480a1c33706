#include "Protocol/ruledata.h"
#include "Protocol/ruleparser.h"
#include "draw/drawscene.h"
#include "host/gdiplus.h"
#include "tests/support/fixtures.h"
#include "tests/support/rulesctlprogram.h"
#include "tests/support/rulestest.h"
#include "tools/rulesctl/documents/loadedrules.h"
#include "tools/rulesctl/documents/templatedocument.h"

using kql::Json::Value;

namespace
{

QStringList render(const QString& folder, const QStringList& more)
{
    return QStringList{"render", "--template", folder + "template.json", "--config",
                       folder + "config.json"} +
           more;
}

/// As the window's canvas paints it: each scene's on top of the last.
QImage painted(const QString& folder, const QSize& size)
{
    const auto parsed = [&folder](const char* name) {
        return RulesctlProgram::parsed(ExampleFiles::contentOf(folder + name));
    };
    LoadedRules rules(TemplateDocument{{}, parsed("template.json"), {}});
    QString why;
    rules.load(parsed("config.json"), why);
    rules.labelFigures();
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    Gdiplus::Graphics graphics(&painter);
    for (const auto& data : rules.parser().getAllData()) {
        data->setSelectedDataId(0);
        data->getDrawScene()->setCanvasSize(size.width(), size.height());
        data->getDrawScene()->draw(&graphics);
    }
    return image;
}

/// By how much the channels of two pictures differ at most.
int difference(const QImage& one, const QImage& other)
{
    int most = one.size() == other.size() ? 0 : 255;
    for (int y = 0; most < 255 && y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            most = qMax(most, qMax(qAbs(qRed(a) - qRed(b)), qAbs(qBlue(a) - qBlue(b))));
        }
    }
    return most;
}

/// The elements of a document under their names, and the attributes of each.
QMultiMap<QString, QXmlStreamAttributes> elements(const QByteArray& text)
{
    QMultiMap<QString, QXmlStreamAttributes> found;
    QXmlStreamReader xml(text);
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement)
            found.insert(xml.name().toString(), xml.attributes());
    }
    return xml.hasError() ? QMultiMap<QString, QXmlStreamAttributes>() : found;
}

} // namespace

/// What rulesctl render paints.
class TestRender : public RulesTest
{
    Q_OBJECT

protected:
    /// It chooses its platform itself.
    void prepare() override
    {
        m_program.environment.remove("QT_QPA_PLATFORM");
        m_program.environment.remove("DISPLAY");
    }

private slots:
    void asTheWindow_data();
    void asTheWindow();
    void elementsOfTheirOwn();
    void oneScene();
    void anyNames();
    void refusals_data();
    void refusals();

private:
    RulesctlProgram m_program;
};

void TestRender::asTheWindow_data()
{
    QTest::addColumn<QString>("folder");
    for (const QString& name : ExampleFiles::names())
        QTest::newRow(qPrintable(name)) << ExampleFiles::folder(name);
}

/// A layer over black rounds in another way than painting on black.
void TestRender::asTheWindow()
{
    QFETCH(QString, folder);
    const QString file = m_program.path("a.png");
    const auto outcome = m_program.run(render(folder, {"--size", "800x450", "-o", file}));
    QCOMPARE(outcome.said, QString());
    QCOMPARE(outcome.status, 0);
    const QImage image(file);
    QVERIFY(difference(image, painted(folder, {800, 450})) <= 2);
    QImage black(image.size(), QImage::Format_RGB32);
    black.fill(Qt::black);
    QVERIFY(difference(image, black) > 100);
}

void TestRender::elementsOfTheirOwn()
{
    QImage picture(819, 409, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    QVERIFY(picture.save(m_program.path("gate.png")));
    const QString file = m_program.path("a.svg");
    const auto outcome = m_program.run(
        render(ExampleFiles::folder(), {"--picture", m_program.path("gate.png"), "-o", file}));
    QCOMPARE(outcome.said, QString());
    const auto found = elements(m_program.contentOf("a.svg"));
    QCOMPARE(found.value("svg").value("viewBox").toString(), QString("0 0 819 409"));
    QCOMPARE(found.count("image"), 1);
    const QString image = found.value("image").value("xlink:href").toString();
    QVERIFY(image.startsWith("data:image/png;base64,"));
    QCOMPARE(QImage::fromData(QByteArray::fromBase64(image.section(',', 1).toLatin1())).size(),
             picture.size());
    QStringList polygons;
    for (const auto& attributes : found.values("polygon"))
        polygons.append(attributes.value("points").toString());
    // 8192 are 819 and 409 pixels, and fractions are cut.
    QCOMPARE(polygons.count("17,384 229,199 294,199 149,384"), 2);
    QCOMPARE(polygons.size(), 6);
    QVERIFY(found.count("text") >= 3);
}

void TestRender::oneScene()
{
    const QString folder = ExampleFiles::folder("traffic");
    const auto countOf = [&](const QStringList& more) {
        const QStringList words = QStringList{"-o", m_program.path("a.svg")} + more;
        return m_program.run(render(folder, words)).status == 0
                   ? elements(m_program.contentOf("a.svg")).count("title")
                   : -1;
    };
    QVERIFY(countOf({"--scene", "lanes"}) > 0);
    QVERIFY(countOf({"--scene", "detectArea"}) > 0);
    QCOMPARE(countOf({}), countOf({"--scene", "lanes"}) + countOf({"--scene", "detectArea"}));
}

void TestRender::anyNames()
{
    const QString config = m_program.file(
        "any.json", R"({"Rules": [{"Name": "<b>&\u0001", "Area": [[0, 0], [9, 0], [9, 9]]}]})");
    const auto outcome =
        m_program.run({"render", "--template", Fixtures::path("rulesctl/template.json"), "--config",
                       config, "-o", m_program.path("any.svg")});
    QCOMPARE(outcome.status, 0);
    QVERIFY(elements(m_program.contentOf("any.svg")).contains("text"));
    QVERIFY(m_program.contentOf("any.svg").contains("&lt;b&gt;&amp;</text>"));
}

void TestRender::refusals_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::newRow("another ending") << QStringList{"-o", "a.jpg"};
    QTest::newRow("no place") << QStringList{};
    QTest::newRow("too small") << QStringList{"-o", "refused.png", "--size", "15x100"};
    QTest::newRow("too large") << QStringList{"-o", "refused.png", "--size", "100x8193"};
    QTest::newRow("no size") << QStringList{"-o", "refused.png", "--size", "100x"};
    QTest::newRow("two sizes") << QStringList{"-o",    "refused.png", "--size",
                                              "99x99", "--picture",   "a"};
    QTest::newRow("no picture") << QStringList{"-o", "refused.png", "--picture", "gone.png"};
    QTest::newRow("a folder") << QStringList{"-o", "refused.png", "--picture", "."};
    QTest::newRow("a huge picture")
        << QStringList{"-o", "refused.png", "--picture", Fixtures::path("pictures/toowide.jpg")};
    QTest::newRow("no such scene") << QStringList{"-o", "refused.png", "--scene", "roads"};
    QTest::newRow("no such folder") << QStringList{"-o", "gone/refused.png"};
}

void TestRender::refusals()
{
    QFETCH(QStringList, words);
    const auto outcome = m_program.run(render(ExampleFiles::folder(), words));
    QCOMPARE(outcome.status, 2);
    QVERIFY(!outcome.said.isEmpty());
    QVERIFY(!QFile::exists(m_program.path("refused.png")));
}

QTEST_MAIN(TestRender)

#include "tst_render.moc"
