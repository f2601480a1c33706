#include "workbench/windowplace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QWidget>

namespace
{

const auto kGeometry = QStringLiteral("geometry");
// What desktops put around a window, which is not known before it shows.
constexpr int kTitleBar = 40;
constexpr int kFrame = 4;

} // namespace

QString WindowPlace::usualFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) +
           QStringLiteral("/window.ini");
}

QRect WindowPlace::within(const QRect& available, const QSize& wanted)
{
    const QRect room = available.adjusted(kFrame, kTitleBar, -kFrame, -kFrame);
    QRect place(QPoint(), wanted.boundedTo(room.size()));
    place.moveCenter(room.center());
    return place;
}

void WindowPlace::restore(QWidget& window, const QString& file)
{
    const QByteArray geometry =
        QSettings(file, QSettings::IniFormat).value(kGeometry).toByteArray();
    if (!window.restoreGeometry(geometry)) {
        window.setGeometry(within(window.screen()->availableGeometry(), window.size()));
        return;
    }
    if (window.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen))
        return;
    // Qt leaves a window as it was where its screen is only somewhat smaller.
    const QScreen* const middle = QGuiApplication::screenAt(window.geometry().center());
    const QRect available =
        (middle ? middle : QGuiApplication::primaryScreen())->availableGeometry();
    if (!available.contains(window.geometry()))
        window.setGeometry(within(available, window.size()));
}

void WindowPlace::keep(const QWidget& window, const QString& file)
{
    QSettings(file, QSettings::IniFormat).setValue(kGeometry, window.saveGeometry());
}
