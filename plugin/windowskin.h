#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace IntelligentRulesUI
{

/**
 * Gives the rules window the style sheet that the skin has for it, in sizes for the desktop's font,
 * on dark desktops with that for these on top, and follows the desktop while the window lives. Dark
 * is where the ground is darker than the text on it: Qt 5 tells no more. A skin without a sheet for
 * dark desktops stays light.
 */
class WindowSkin : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of @p window, whose object name is that of its sheet.
    explicit WindowSkin(QWidget* window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void watchAround();
    void follow();
    void apply();

    QWidget* m_window;          ///< the parent
    QPointer<QWidget> m_around; ///< what the window lies in; null for nothing
    bool m_isDark = false;
};

} // namespace IntelligentRulesUI
