#pragma once

#include <QScrollArea>

class WidgetLayout;
class WidgetTabel;

/// A frameless scroll view over one table, which is as wide as the view and as tall as its rows.
class WidgetTabelView : public QScrollArea
{
    Q_OBJECT

public:
    explicit WidgetTabelView(QWidget* parent = nullptr);

    WidgetTabel* content() const { return m_content; }
    void addWidget(QWidget* widget);
    void addWidgetLayout(WidgetLayout* layout);
    void clearAll();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    bool isOverfull() const;
    void layOut(int width);

    WidgetTabel* m_content;
};
