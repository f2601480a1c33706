#include "plugin/windowskin.h"

#include "host/api/skin.h"
#include "plugin/modulelifetime.h"
#include "plugin/skinfont.h"

#include <QApplication>
#include <QEvent>

#include <utility>

namespace IntelligentRulesUI
{

namespace
{

constexpr char kSuffix[] = ".qss";
constexpr char kDarkSuffix[] = "Dark.qss";

bool isDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

} // namespace

WindowSkin::WindowSkin(QWidget* window) : QObject(window), m_window(window)
{
    window->installEventFilter(this);
    watchAround();
    m_isDark = isDark(m_around ? m_around->palette() : QApplication::palette());
    apply();
}

/// The window's own palette has the colours of its sheet, and does not follow.
bool WindowSkin::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ParentChange:
        if (watched == m_window)
            watchAround();
        follow();
        break;
    case QEvent::ApplicationPaletteChange:
    case QEvent::PaletteChange:
        follow();
        break;
    case QEvent::ApplicationFontChange:
        if (watched == m_window)
            apply();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void WindowSkin::watchAround()
{
    if (m_around)
        m_around->removeEventFilter(this);
    m_around = m_window->parentWidget();
    if (m_around)
        m_around->installEventFilter(this);
}

void WindowSkin::follow()
{
    const bool dark = isDark(m_around ? m_around->palette() : QApplication::palette());
    if (std::exchange(m_isDark, dark) != dark)
        apply();
}

void WindowSkin::apply()
{
    const QString name = m_window->objectName();
    QString path = UICommonMdl::GetSkinPath(QString::fromLatin1(kModuleName),
                                            name + QString::fromLatin1(kSuffix));
    QString text;
    if (!UICommonMdl::loadStyleSheet(path, text))
        return;
    // Of the same skin, whose sheet it changes.
    path.chop(int(qstrlen(kSuffix)));
    QString dark;
    if (m_isDark && UICommonMdl::loadStyleSheet(path + QString::fromLatin1(kDarkSuffix), dark))
        text += QLatin1Char('\n') + dark;
    m_window->setStyleSheet(SkinFont::fitted(text, QApplication::font()));
}

} // namespace IntelligentRulesUI
