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

/// The fight-calibrate scene's data; makes its own template.
class FightCalibrateData : public RuleData
{
public:
    FightCalibrateData();
};

/// The lanes scene's data; makes its own template.
class LanesData : public RuleData
{
public:
    LanesData();
};
