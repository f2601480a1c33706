#include "fuzz/scenetext.h"

#include "Protocol/datatemplate.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"

#include <QDebug>

namespace
{

QString entryText(const RuleData& scene, const RuleDataInfo& entry)
{
    QString text;
    QDebug out(&text);
    out << entry.name() << entry.isEnabled();
    for (const auto& item : scene.getTemplate()->items()) {
        const QVariant value = entry.value(item->key());
        out << item->key() << value << entry.isValid(item->key());
    }
    const QList<DrawItem*> figures = scene.getDrawScene()->getItemListByDataId(entry.id());
    for (const DrawItem* figure : figures) {
        out << "\n   " << int(figure->drawType()) << figure->templateKey() << figure->isFinished();
        out << (figure->parent() ? "inside" : "alone") << figure->getPoints();
    }
    out << '\n';
    return text;
}

} // namespace

std::string SceneText::of(const RuleData& scene)
{
    QString text = QStringLiteral("scene %1\n").arg(int(scene.getSceneType()));
    for (const auto& entry : scene.getAllData())
        text += entryText(scene, *entry);
    return text.toStdString();
}

std::string SceneText::of(const RuleParser& parser)
{
    std::string text;
    for (const auto& scene : parser.getAllData())
        text += of(*scene);
    return text;
}
