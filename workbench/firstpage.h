#pragma once

#include <QPointer>
#include <QScrollArea>

class QLabel;
class QVBoxLayout;

/**
 * What to begin with while nothing is loaded, and why a document could not be used. It lies over
 * the place of the sections, in a layer above the rules window, and moves nothing there.
 */
class FirstPage : public QScrollArea
{
    Q_OBJECT

public:
    /// @p over is the widget to lie over, not owned; the page is a child of its window.
    explicit FirstPage(QWidget* over);

    /// Says why a document cannot be used; an empty @p error takes that away.
    void tell(const QString& error);

signals:
    void sgnOpenTemplate();
    void sgnOpenExample(const QString& name);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void addExamples(QVBoxLayout& column);
    void place();
    bool isDark() const;
    void follow();

    QPointer<QWidget> m_over;
    QLabel* m_error;
    bool m_isDark = false; ///< as the sheet is
};
