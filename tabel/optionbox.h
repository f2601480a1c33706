#pragma once

#include "Protocol/ruleprotocolitem.h"
#include "tabel/elision.h"

#include <QStyleOptionButton>
#include <QStylePainter>

class QAbstractButton;

/// Gives @p box text, tool tip and the dynamic property "value" (the stored text).
void bindOption(QAbstractButton& box, const EnumOption& option);

/// A check box or radio button bound to one option; its dynamic property "value" holds the stored
/// text.
template<class Button, QStyle::ControlElement kElement, QStyle::SubElement kContents>
class OptionBox : public Button
{
public:
    OptionBox(const EnumOption& option, QWidget* parent) : Button(parent), m_value(option.value)
    {
        bindOption(*this, option);
    }

    /// As stored in the configuration.
    const QString& value() const { return m_value; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QStyleOptionButton look;
        this->initStyleOption(&look);
        Elision::fit(*this, kContents, look);
        QStylePainter(this).drawControl(kElement, look);
    }

private:
    QString m_value;
};
