#pragma once

#include "Protocol/ruledata.h"

#include <QCoreApplication>

/// The calibrate-area scene's data; makes its own template.
class CalibrateAreaData : public RuleData
{
    Q_DECLARE_TR_FUNCTIONS(CalibrateAreaData)

public:
    CalibrateAreaData();
    /// Names each area that lacks a length.
    void collectNotices(QStringList& notices) const override;
};
