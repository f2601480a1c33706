#include "workbench/display.h"

#include <QByteArray>
#include <QString>

namespace WorkbenchDisplay
{

namespace
{

QtMessageHandler g_previousHandler = nullptr;

// What Qt says of every window and run without a display; it tells an operator nothing.
void dropPlatformNoise(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support")) &&
        !text.startsWith(QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set")))
        g_previousHandler(type, context, text);
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

bool useOffscreen()
{
    g_previousHandler = qInstallMessageHandler(&dropPlatformNoise);
    return qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("offscreen"));
}

void setPlainDensity()
{
    if (qgetenv("QT_QPA_PLATFORM").startsWith("offscreen") &&
        !qEnvironmentVariableIsSet("QT_FONT_DPI"))
        qputenv("QT_FONT_DPI", QByteArrayLiteral("96"));
}

} // namespace WorkbenchDisplay
