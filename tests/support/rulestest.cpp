#include "tests/support/rulestest.h"

namespace
{

// As wide as on a plain desktop, for what is pressed at places: the offscreen platform has screens
// of 100 dots an inch, and a font of 12 points.
const bool g_isPlain = qputenv("QT_FONT_DPI", "96");
constexpr int kPlainPoints = 9;

RulesTest* g_running = nullptr;
QtMessageHandler g_previousHandler = nullptr;

// Said by Qt's offscreen platform for every shown window; it tells nothing about our code.
const auto kPlatformNoise = QStringLiteral("This plugin does not support");
// Said by the test library for a release that no widget waits for; by that of Qt 5 past a handler.
const auto kReleaseNoise = QStringLiteral("Mouse event \"MouseRelease\" not accepted");

} // namespace

RulesTest::~RulesTest()
{
    if (g_running == this)
        g_running = nullptr;
}

void RulesTest::expectWarning(const QRegularExpression& pattern)
{
    m_expected.append(pattern);
}

void RulesTest::initTestCase()
{
    g_running = this;
    g_previousHandler = qInstallMessageHandler(&RulesTest::handleMessage);
    if (g_isPlain && qobject_cast<QApplication*>(QCoreApplication::instance())) {
        QFont font = QApplication::font();
        font.setPointSize(kPlainPoints);
        QApplication::setFont(font);
    }
    prepare();
}

void RulesTest::init()
{
    m_expected.clear();
    m_unexpected.clear();
    prepareTest();
}

void RulesTest::cleanup()
{
    QVERIFY2(m_unexpected.isEmpty(), qPrintable(m_unexpected.join(QLatin1Char('\n'))));
}

void RulesTest::handleMessage(QtMsgType type, const QMessageLogContext& context,
                              const QString& text)
{
    if (text.startsWith(kPlatformNoise) || text.startsWith(kReleaseNoise))
        return;
    if (g_running && (type == QtWarningMsg || type == QtCriticalMsg)) {
        for (const QRegularExpression& pattern : qAsConst(g_running->m_expected)) {
            if (pattern.match(text).hasMatch())
                return;
        }
        g_running->m_unexpected.append(text);
    }
    if (g_previousHandler)
        g_previousHandler(type, context, text);
}
