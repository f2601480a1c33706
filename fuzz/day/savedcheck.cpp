#include "fuzz/day/savedcheck.h"

#include "fuzz/fault.h"

#include "Protocol/datatemplate.h"
#include "Protocol/entryname.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "host/json/reader.h"
#include "host/json/value.h"
#include "scene/basetabelscene.h"
#include "workbench/workbenchwindow.h"

#include <QDebug>
#include <QFile>
#include <algorithm>

using Fuzz::require;

namespace
{

std::string text(const QVariant& value)
{
    QString shown;
    QDebug(&shown) << value;
    return shown.toStdString();
}

/// A limit of a range that is empty is 0 for devices.
QVariant written(const QVariant& value)
{
    return value.type() == QVariant::Size ? value.toSize().expandedTo({0, 0}) : value;
}

bool hasInner(const RuleData& data, const RuleDataInfo& entry)
{
    const QList<DrawItem*> figures = data.getDrawScene()->getItemListByDataId(entry.id());
    return std::any_of(figures.begin(), figures.end(),
                       [](const DrawItem* figure) { return figure->parent(); });
}

QString figuresText(const RuleData& data, const RuleDataInfo& entry, bool withInner)
{
    QStringList lines;
    for (const DrawItem* figure : data.getDrawScene()->getItemListByDataId(entry.id())) {
        if (figure->parent() && !withInner)
            continue;
        QString line;
        QDebug(&line) << int(figure->drawType()) << figure->isFinished() << bool(figure->parent())
                      << figure->getPoints();
        lines.append(line);
    }
    lines.sort();
    return lines.join(QLatin1Char('\n'));
}

void requireEntry(const RuleData& shown, const RuleData& saved, int position)
{
    const RuleDataInfo& was = *shown.getAllData()[static_cast<std::size_t>(position)];
    const RuleDataInfo& is = *saved.getAllData()[static_cast<std::size_t>(position)];
    if (shown.getSceneType() == SceneType::Rules)
        require(is.name() == EntryName::written(shown, position) &&
                    is.isEnabled() == was.isEnabled(),
                "an entry is saved under another name");
    // The staffs of a calibration area that was drawn are added when it is written.
    const bool withInner = shown.getSceneType() != SceneType::CalibrateArea || hasInner(shown, was);
    const QString before = figuresText(shown, was, withInner);
    const QString after = figuresText(saved, is, withInner);
    require(before == after, "an entry shows\n" + before.toStdString() + "\nand is saved as\n" +
                                 after.toStdString());
    for (const auto& item : shown.getTemplate()->items()) {
        const QVariant value = was.value(item->key());
        const QVariant back = is.value(item->key());
        const bool isSame = !item->isControl() || !value.isValid() || back == written(value);
        require(isSame, "the value " + item->key().toStdString() + " is " + text(value) +
                            " and saved as " + text(back));
    }
}

} // namespace

void SavedCheck::require(const WorkbenchWindow& window, const QString& result)
{
    kql::Json::Value message;
    ::require(kql::Json::Reader().parse(result, message), "the result is not JSON");
    QFile file(window.options().templateFile);
    ::require(file.open(QIODevice::ReadOnly), "the template is gone");
    RuleParser parser;
    ::require(parser.parseTemplate(QString::fromUtf8(file.readAll())) &&
                  parser.readData(qAsConst(message)["channelAbilityPO"].toStyledText()),
              "what was saved cannot be read");
    for (const BaseTabelScene* panel : window.rulesWindow()->findChildren<BaseTabelScene*>()) {
        const RuleData* shown = panel->ruleData();
        if (!shown)
            continue;
        const RuleData* saved = parser.getData(shown->getSceneType());
        ::require(saved && saved->getDataCount() == shown->getDataCount(),
                  "other entries are saved than shown");
        for (int i = 0; i < shown->getDataCount(); ++i)
            requireEntry(*shown, *saved, i);
    }
}
