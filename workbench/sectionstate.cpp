#include "workbench/sectionstate.h"

#include "host/api/rowcontract.h"
#include "workbench/panelfinder.h"
#include "workbench/recordedstep.h"

#include <QVariant>
#include <QWidget>

SectionState::SectionState(const PanelFinder& finder)
{
    for (const QWidget* panel : finder.panels()) {
        m_folded[panel->objectName()] = panel->property(RowContract::kFolded).toBool();
        if (panel->property(RowContract::kSelected).toBool())
            m_selected = panel->objectName();
    }
}

std::vector<kql::Json::Value> SectionState::stepsFrom(const SectionState& before) const
{
    std::vector<kql::Json::Value> steps;
    QString selected = before.m_selected;
    for (auto i = m_folded.begin(); i != m_folded.end(); ++i) {
        if (before.m_folded.value(i.key()) == i.value())
            continue;
        // That selects the section, too.
        steps.push_back(RecordedStep::fold(i.key(), i.value()));
        selected = i.key();
    }
    if (selected != m_selected && !m_selected.isEmpty())
        steps.push_back(RecordedStep::select(m_selected));
    return steps;
}
