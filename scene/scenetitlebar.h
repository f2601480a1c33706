#pragma once

#include <QWidget>

class TitleLabel;

/**
 * Heading of a section, which folds it. Skins style it by its properties "bFold" and "selected".
 */
class SceneTitleBar : public QWidget
{
    Q_OBJECT

public:
    explicit SceneTitleBar(QWidget* parent = nullptr);

    void setTitle(const QString& title);
    QString title() const;
    void setFolded(bool folded);
    void setSelected(bool selected);
    /// Shows that the section around has the focus.
    void setHoldsFocus(bool holds);

signals:
    /// It was pressed, or a key for it.
    void sgnPressed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void setLook(const char* property, bool on);

    TitleLabel* m_label;
    QWidget* m_arrow;
};
