#include "scene/calibrateareascene.h"

#include "Protocol/calibration/calibrateareatemplate.h"
#include "Protocol/misfit.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "draw/drawscene.h"
#include "tabel/controlitemwidgettabel.h"
#include "tabel/drawfucbutton.h"
#include "tabel/inputboxtabel.h"
#include "tabel/rulewidgettabel.h"

CalibrateAreaScene::CalibrateAreaScene(QWidget* parent) : BaseTabelScene(parent)
{
    addFucButton(widgets().ruleFucBar, BaseDrawType::Polygon, tr("Calibrate area"));
    CalibrateAreaScene::checkLayout();
}

const CalibrateAreaTemplate* CalibrateAreaScene::calibrateTemplate() const
{
    return isBound() ? CalibrateAreaTemplate::of(*ruleData()) : nullptr;
}

bool CalibrateAreaScene::isSceneMethod() const
{
    const CalibrateAreaTemplate* calibrate = calibrateTemplate();
    return calibrate && calibrate->isSceneMethod();
}

void CalibrateAreaScene::setRuleData(RuleData* newData)
{
    m_verticalRow = nullptr;
    m_horizontalRow = nullptr;
    widgets().childFucBar->deleteAll();
    BaseTabelScene::setRuleData(newData);
}

void CalibrateAreaScene::bindFixedRows()
{
    const CalibrateAreaTemplate* calibrate = calibrateTemplate();
    if (!calibrate)
        return;
    const bool isScene = calibrate->isSceneMethod();
    m_verticalRow = new InputBoxTabel(widgets().controls);
    m_horizontalRow = new InputBoxTabel(widgets().controls);
    addFixedRow(m_verticalRow, calibrate->verticalLengthItem(),
                isScene ? tr("Vertical length") : tr("Length"));
    addFixedRow(m_horizontalRow, calibrate->horizontalLengthItem(),
                isScene ? tr("Horizontal length") : tr("Width"));
    if (!isScene)
        return;
    addFucButton(widgets().childFucBar, BaseDrawType::VerticalRuler, tr("Vertical ruler"));
    addFucButton(widgets().childFucBar, BaseDrawType::HorizontalRuler, tr("Horizontal ruler"));
}

void CalibrateAreaScene::checkLayout()
{
    BaseTabelScene::checkLayout();
    if (!calibrateTemplate() || !m_verticalRow || !m_horizontalRow)
        return;
    for (ControlTabel* row : {m_verticalRow, m_horizontalRow})
        markWithoutLength(*row);
    if (!isSceneMethod())
        return;
    updateLengthRow(m_verticalRow, BaseDrawType::VerticalRuler);
    updateLengthRow(m_horizontalRow, BaseDrawType::HorizontalRuler);
}

void CalibrateAreaScene::markWithoutLength(ControlTabel& row)
{
    const RuleDataInfo* entry = ruleData()->selectedDataInfo();
    const bool lacksLength = entry && !entry->value(row.key()).isValid();
    const QString misfit = entry ? Misfit::explained(*ruleData(), *entry, row.key()) : QString();
    const QString missing = lacksLength ? tr("The area has no length here.") : QString();
    row.setMark(misfit.isEmpty() ? missing : misfit);
}

void CalibrateAreaScene::updateLengthRow(InputBoxTabel* row, BaseDrawType rulerType)
{
    // A length is set before its rulers are drawn: these then keep the length they stand for.
    const RuleDataInfo* entry = ruleData()->selectedDataInfo();
    row->setControlEnable(!entry || getDrawScene()->itemCount(rulerType, entry->id()) == 0);
}
