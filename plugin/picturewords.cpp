#include "plugin/picturewords.h"

#include "Protocol/ruledata.h"
#include "draw/crosshair.h"
#include "draw/drawgeometry.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "scene/basetabelscene.h"

#include <QStringList>

namespace IntelligentRulesUI
{

namespace
{

// More than these nobody listens to.
constexpr int kFigures = 20;

} // namespace

QString PictureWords::of(const BaseTabelScene& panel, const CrossHair& crossHair)
{
    QString told = figures(panel);
    for (const QString& sentence : {panel.hintText(), place(panel, crossHair)}) {
        if (!sentence.isEmpty())
            told = tr("%1 %2", "two sentences").arg(told, sentence);
    }
    return told;
}

QString PictureWords::figures(const BaseTabelScene& panel)
{
    const RuleData& data = *panel.ruleData();
    const int entry = data.getSelectedDataId();
    QStringList told;
    for (const DrawItem* item : panel.getDrawScene()->getItemListByDataId(entry).mid(0, kFigures)) {
        const QString text =
            item->isFinished() ? tr("%1, points: %2") : tr("%1, being drawn, points: %2");
        told.append(text.arg(item->label(), QString::number(item->value().pointCount())));
    }
    if (told.isEmpty())
        return tr("Nothing is drawn.");
    return tr("%1.", "all figures").arg(told.join(tr("; ", "between figures")));
}

QString PictureWords::place(const BaseTabelScene& panel, const CrossHair& crossHair)
{
    const QSize canvas = panel.getDrawScene()->canvasSize();
    if (!crossHair.isShown() || canvas.isEmpty())
        return {};
    const QPoint at =
        DrawGeometry::toNormalized(crossHair.position(canvas), canvas).value_or(QPoint());
    return tr("Cross-hair at %1, %2.").arg(at.x()).arg(at.y());
}

} // namespace IntelligentRulesUI
