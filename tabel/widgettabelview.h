#pragma once

#include <QScrollArea>
#include <functional>

class WidgetLayout;
class WidgetTabel;

/// A frameless scroll view over one table, which is as wide as the view and as tall as its rows.
class WidgetTabelView : public QScrollArea
{
    Q_OBJECT

public:
    explicit WidgetTabelView(QWidget* parent = nullptr);

    /// Parent for what is to be added: a widget that is moved from another one is styled twice.
    WidgetTabel* content() const { return m_content; }
    /// Does @p work, which adds or takes out much, while the content does not show. What shows is
    /// laid out and painted in a time that grows with the square of its number.
    void changeHidden(const std::function<void()>& work);
    void addWidget(QWidget* widget);
    void addWidgetLayout(WidgetLayout* layout);
    void clearAll();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    bool isOverfull() const;
    void fit();
    void layOut(int width);

    WidgetTabel* m_content;
};
