#include "bench/samplepanel.h"

#include "Protocol/ruledata.h"
#include "draw/drawscene.h"
#include "scene/basetabelscene.h"
#include "scene/scenefactory.h"
#include "tabel/ruleitemwidgettabel.h"

#include <QCoreApplication>

SamplePanel::SamplePanel(const RuleParser& parser)
    : m_data(parser.getData(SceneType::Rules)), m_panel(createScene(SceneType::Rules, &m_view))
{
    m_view.resize(335, 800);
    m_data->getDrawScene()->setCanvasSize(1920, 1080);
    m_panel->setRuleData(m_data);
    m_view.addWidgetLayout(m_panel);
    m_panel->setSelected(true);
    m_view.show();
    QCoreApplication::processEvents();
}

SamplePanel::~SamplePanel()
{
    m_panel->setRuleData(nullptr);
}

const QWidget& SamplePanel::panel() const
{
    return *m_panel;
}

const QList<DrawItemButton*>& SamplePanel::entryButtons() const
{
    return m_panel->findChild<RuleItemWidgetTabel*>(QStringLiteral("drawItems"))->buttons();
}
