#pragma once

#include "draw/figuretypes.h"
#include "tabel/widgettabel.h"

class DrawFucButton;

/// The bar of a scene's function buttons.
class RuleWidgetTabel : public WidgetTabel
{
    Q_OBJECT

public:
    using WidgetTabel::WidgetTabel;

    /// Appends @p button, enabled as the bar is, and relays its presses.
    void addButton(DrawFucButton* button);
    const QList<DrawFucButton*>& buttons() const { return m_buttons; }
    /// The figure kinds of the buttons, in order.
    QList<BaseDrawType> drawTypes() const;

signals:
    /// A button was pressed; @p type is its BaseDrawType, @p itemKey as its itemKey().
    void sgnBtnClicked(int type, const QString& itemKey);

protected:
    void forgetWidget(const QObject* child) override;

private:
    QList<DrawFucButton*> m_buttons;
};
