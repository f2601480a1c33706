#pragma once

#include "Protocol/ruleparser.h"
#include "tabel/widgettabelview.h"

#include <QByteArray>
#include <QString>

class BaseTabelScene;
class DrawItemButton;
class RuleData;

/// The panel of the rules of one template and configuration, in a view as the module shows it.
class SamplePanel
{
public:
    /// @p parser outlives the panel.
    explicit SamplePanel(const RuleParser& parser);
    ~SamplePanel();

    const QWidget& panel() const;
    /// The buttons of the entries, in their order.
    const QList<DrawItemButton*>& entryButtons() const;
    RuleData& data() const { return *m_data; }

private:
    RuleData* m_data; ///< not owned
    WidgetTabelView m_view;
    BaseTabelScene* m_panel; ///< owned by the view
};
