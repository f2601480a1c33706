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
    QStringList sentences{figures(panel), panel.hintText(), place(panel, crossHair)};
    sentences.removeAll(QString());
    return sentences.join(QLatin1Char(' '));
}

QString PictureWords::figures(const BaseTabelScene& panel)
{
    const RuleData& data = *panel.ruleData();
    const int entry = data.getSelectedDataId();
    QStringList told;
    for (const DrawItem* item : panel.getDrawScene()->getItemListByDataId(entry).mid(0, kFigures)) {
        const QString text =
            item->isFinished() ? tr("%1 with %2 points") : tr("%1, being drawn, with %2 points");
        told.append(text.arg(item->label()).arg(item->value().pointCount()));
    }
    if (told.isEmpty())
        return tr("Nothing is drawn.");
    return told.join(QStringLiteral(", ")) + QLatin1Char('.');
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
