#pragma once

#include <QWidget>

class TitleLabel;

/**
 * Heading of a section. Skins style it by its properties "bFold" and "selected".
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

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void setLook(const char* property, bool on);

    TitleLabel* m_label;
    QWidget* m_arrow;
};
