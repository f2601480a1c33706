#include "fuzz/day/dayorder.h"

#include "fuzz/fault.h"
#include "fuzz/scenetext.h"

#include "Protocol/entryname.h"
#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleprotocolitem.h"
#include "draw/drawgeometry.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "host/video/qrtspvideownd.h"
#include "plugin/correcting.h"
#include "scene/globalscene.h"
#include "tabel/controltabel.h"
#include "tabel/drawitembutton.h"
#include "tabel/ruleitemwidgettabel.h"
#include "workbench/workbenchwindow.h"

#include <QDebug>
#include <QLineEdit>
#include <QRect>
#include <algorithm>

using Fuzz::require;

namespace
{

QList<BaseTabelScene*> panelsOf(const WorkbenchWindow& window)
{
    QList<BaseTabelScene*> panels = window.rulesWindow()->findChildren<BaseTabelScene*>();
    const auto isGone = [](const BaseTabelScene* panel) { return !panel->ruleData(); };
    panels.erase(std::remove_if(panels.begin(), panels.end(), isGone), panels.end());
    return panels;
}

const RuleItemWidgetTabel& table(const BaseTabelScene& panel, const char* name)
{
    const auto* found = panel.findChild<RuleItemWidgetTabel*>(QString::fromLatin1(name));
    require(found, std::string("a section has no table ") + name);
    return *found;
}

void requireEntryButton(const RuleData& data, int position, const DrawItemButton& button)
{
    const RuleDataInfo& entry = *data.getAllData()[static_cast<std::size_t>(position)];
    require(button.dataId() == entry.id(), "a button stands for another entry");
    require(button.fullText() == EntryName::button(data, position),
            "a button shows \"" + button.fullText().toStdString() + "\" for \"" +
                EntryName::button(data, position).toStdString() + '"');
    require(button.enabledState() == entry.isEnabled(), "a button is enabled as its entry is not");
    const DrawItem* figure = data.getDrawScene()->findItem(button.id());
    require(button.id() == 0 || (figure && figure->dataId() == entry.id()),
            "a button stands for a figure that its entry does not have");
}

void requireButtons(const BaseTabelScene& panel, const RuleData& data)
{
    const RuleItemWidgetTabel& entries = table(panel, "drawItems");
    // The global section's one entry needs no button.
    const bool hasButtons = !qobject_cast<const GlobalScene*>(&panel);
    const int count = hasButtons ? data.getDataCount() : 0;
    require(entries.buttons().size() == count, "there are other buttons than entries");
    for (int i = 0; i < count; ++i)
        requireEntryButton(data, i, *entries.buttons()[i]);
    const DrawItemButton* current = entries.currentButton();
    require(count == 0 || (current && current->dataId() == data.getSelectedDataId()),
            "the current button is not that of the selected entry");
    for (const DrawItemButton* button : table(panel, "childDrawItems").buttons()) {
        const DrawItem* figure = data.getDrawScene()->findItem(button->id());
        require(figure && figure->dataId() == data.getSelectedDataId(),
                "a child's button stands for no figure of the selected entry");
    }
}

void requireSelection(const RuleData& data)
{
    const int selected = data.getSelectedDataId();
    require(selected <= 0 || data.getDataInfo(selected), "the selected entry does not exist");
    require(data.getDataCount() == 0 || selected > 0, "no entry is selected");
    const DrawScene& canvas = *data.getDrawScene();
    const DrawItem* figure = canvas.selectedItem(canvas.currentDataId());
    require(!figure || figure->dataId() == selected, "a figure of another entry is selected");
}

void requireFigures(const RuleData& data)
{
    constexpr int kEnd = DrawGeometry::kNormalizedExtent + 1;
    int unfinished = 0;
    for (const DrawItem* item : data.getDrawScene()->getItemList(BaseDrawType::None, 0)) {
        require(data.getDataInfo(item->dataId()), "a figure belongs to no entry");
        require(!item->parent() || item->parent()->dataId() == item->dataId(),
                "a figure lies in one of another entry");
        for (const QPoint& point : item->getPoints())
            require(QRect(0, 0, kEnd, kEnd).contains(point), "a point lies beside the picture");
        unfinished += !item->isFinished() && item->isSelected() ? 1 : 0;
    }
    require(unfinished <= 1, "two figures are drawn at a time");
}

void requireRows(const BaseTabelScene& panel, const RuleData& data)
{
    const RuleDataInfo* entry = data.selectedDataInfo();
    for (const ControlTabel* row : panel.findChildren<ControlTabel*>()) {
        const auto edits = row->findChildren<QLineEdit*>();
        const bool isEdited = std::any_of(edits.begin(), edits.end(),
                                          [](const QLineEdit* edit) { return edit->isModified(); });
        const QVariant value = entry ? entry->value(row->key()) : QVariant();
        if (!isEdited && !row->isHidden() && value.isValid())
            require(row->value() == value, "the row " + row->key().toStdString() + " shows \"" +
                                               row->value().toString().toStdString() +
                                               "\" in place of \"" +
                                               value.toString().toStdString() + '"');
    }
}

QString shownText(const BaseTabelScene& panel)
{
    QString text;
    QDebug out(&text);
    const RuleData& data = *panel.ruleData();
    const DrawScene& canvas = *data.getDrawScene();
    DrawItem* const figure = canvas.selectedItem(canvas.currentDataId());
    out << panel.objectName() << panel.getSelected() << panel.getFold()
        << data.indexOf(data.getSelectedDataId()) << "figure"
        << (figure ? canvas.getItemList(BaseDrawType::None, 0).indexOf(figure) : -1);
    for (const char* name : {"drawItems", "childDrawItems"}) {
        for (const DrawItemButton* button : table(panel, name).buttons())
            out << "\n   " << button->fullText() << button->isChecked() << button->isEnabled();
    }
    for (const ControlTabel* row : panel.findChildren<ControlTabel*>()) {
        out << "\n   " << row->key() << row->isHidden() << row->isMarked() << row->heldValue();
        for (const QLineEdit* edit : row->findChildren<QLineEdit*>())
            out << edit->text() << edit->isEnabled();
    }
    out << '\n';
    return text;
}

} // namespace

void DayOrder::require(const WorkbenchWindow& window)
{
    const QList<BaseTabelScene*> panels = panelsOf(window);
    const QSize picture = window.videoSurface()->paneRect(0).size();
    int selected = 0;
    for (const BaseTabelScene* panel : panels) {
        const RuleData& data = *panel->ruleData();
        requireSelection(data);
        requireButtons(*panel, data);
        requireFigures(data);
        requireRows(*panel, data);
        if (!panel->getSelected())
            continue;
        ++selected;
        ::require(picture.isEmpty() || panel->getDrawScene()->canvasSize() == picture,
                  "the canvas is not as large as the picture");
    }
    ::require(panels.isEmpty() || selected == 1, "not one section is selected");
}

std::string DayOrder::contents(const WorkbenchWindow& window)
{
    std::string text;
    for (const BaseTabelScene* panel : panelsOf(window))
        text += SceneText::of(*panel->ruleData());
    return text;
}

std::string DayOrder::ids(const WorkbenchWindow& window)
{
    std::string text;
    for (const BaseTabelScene* panel : panelsOf(window)) {
        const auto add = [&text](int id, int place) {
            text += ' ' + std::to_string(id) + '@' + std::to_string(place);
        };
        for (const auto& entry : panel->ruleData()->getAllData())
            add(entry->id(), entry->sourceIndex());
        for (const DrawItem* item : panel->getDrawScene()->getItemList(BaseDrawType::None, 0))
            add(item->itemId(), item->sourceIndex());
        text += '\n';
    }
    return text;
}

std::string DayOrder::shown(const WorkbenchWindow& window)
{
    QString text;
    for (const BaseTabelScene* panel : panelsOf(window))
        text += shownText(*panel);
    return text.toStdString();
}

bool DayOrder::isDrawing(const WorkbenchWindow& window)
{
    const auto panels = panelsOf(window);
    return std::any_of(panels.begin(), panels.end(), [](const BaseTabelScene* panel) {
        return panel->getDrawScene() && panel->getDrawScene()->isDrawing();
    });
}

bool DayOrder::isEditing(const WorkbenchWindow& window)
{
    const auto edits = window.rulesWindow()->findChildren<QLineEdit*>();
    const auto rows = window.rulesWindow()->findChildren<ControlTabel*>();
    const QWidget* focused = window.focusWidget();
    const auto* correcting = window.rulesWindow()->findChild<IntelligentRulesUI::Correcting*>();
    if (correcting->figures().isMoving())
        return true;
    // A row marks letters that it refused until it is left.
    return std::any_of(edits.begin(), edits.end(),
                       [](const QLineEdit* edit) { return edit->isModified(); }) ||
           std::any_of(rows.begin(), rows.end(), [focused](const ControlTabel* row) {
               return row->isRefusing() && row->isAncestorOf(focused);
           });
}
