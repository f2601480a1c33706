#pragma once

#include "host/json/value.h"

#include <QMap>
#include <QString>
#include <vector>

class PanelFinder;

/// Which section of a rules window is selected, and which are folded.
class SectionState
{
public:
    explicit SectionState(const PanelFinder& finder);

    /// The steps of a session that lead from @p before to this.
    std::vector<kql::Json::Value> stepsFrom(const SectionState& before) const;

private:
    QString m_selected; ///< a scene's name; empty for none
    QMap<QString, bool> m_folded;
};
