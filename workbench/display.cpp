#include "workbench/display.h"

#include <QApplication>
#include <QByteArray>
#include <QFont>
#include <QGuiApplication>
#include <QString>

namespace WorkbenchDisplay
{

namespace
{

constexpr int kPlainPoints = 9;

QtMessageHandler g_previousHandler = nullptr;

// What Qt says of every window and run without a display; it tells an operator nothing.
void dropPlatformNoise(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support")) &&
        !text.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")))
        g_previousHandler(type, context, text);
}

bool isOffscreen()
{
    return qgetenv("QT_QPA_PLATFORM").startsWith("offscreen");
}

} // namespace

bool isThere()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (!qEnvironmentVariableIsEmpty(name))
            return true;
    }
    return false;
#else
    return true;
#endif
}

bool isSeen()
{
    const QString platform = QGuiApplication::platformName();
    return platform != QLatin1String("offscreen") && platform != QLatin1String("minimal");
}

bool useOffscreen()
{
    g_previousHandler = qInstallMessageHandler(&dropPlatformNoise);
    return qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("offscreen"));
}

void setPlainDensity()
{
    if (isOffscreen() && !qEnvironmentVariableIsSet("QT_FONT_DPI"))
        qputenv("QT_FONT_DPI", QByteArrayLiteral("96"));
}

void setPlainFont()
{
    if (!isOffscreen())
        return;
    QFont font = QApplication::font();
    font.setPointSize(kPlainPoints);
    QApplication::setFont(font);
}

} // namespace WorkbenchDisplay
