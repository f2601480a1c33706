#include "workbench/recordedstep.h"

#include "host/api/rowcontract.h"
#include "host/video/picturesize.h"
#include "workbench/clipboardloan.h"
#include "workbench/panelfinder.h"
#include "workbench/rowhand.h"
#include "workbench/sourcebook.h"
#include "workbench/workbenchoptions.h"

#include <QAbstractButton>
#include <QAction>
#include <QFileInfo>
#include <QLineEdit>

#include <algorithm>

namespace RecordedStep
{

using kql::Json::ValueType;

namespace
{

constexpr int kNormalizedExtent = 8192;

Value step(const char* name)
{
    Value result(ValueType::Object);
    result["do"] = name;
    return result;
}

Value stepIn(const QString& scene, const char* name)
{
    Value result = step(name);
    result["scene"] = scene;
    return result;
}

Value stepIn(const QWidget* panel, const char* name)
{
    return panel ? stepIn(panel->objectName(), name) : step(name);
}

Value pairOf(int first, int second)
{
    Value result(ValueType::Array);
    result.append(first);
    result.append(second);
    return result;
}

int normalized(int pixel, int extent)
{
    return static_cast<int>(static_cast<qint64>(pixel) * kNormalizedExtent / extent);
}

QWidget* around(const QWidget& widget, bool (*isWanted)(const QWidget&))
{
    QWidget* above = widget.parentWidget();
    while (above && !isWanted(*above))
        above = above->isWindow() ? nullptr : above->parentWidget();
    return above;
}

template<class Predicate>
int numberOf(const QList<QAbstractButton*>& buttons, Predicate isWanted)
{
    const auto found = std::find_if(buttons.begin(), buttons.end(), isWanted);
    return found == buttons.end() ? 0 : static_cast<int>(found - buttons.begin()) + 1;
}

Value pick(const PanelFinder& finder, QWidget* panel, const QAbstractButton& button)
{
    const auto isButton = [&button](const QAbstractButton* other) { return other == &button; };
    const auto entries = finder.entryButtons(panel, false);
    Value result = stepIn(panel, "pick");
    if (const int entry = numberOf(entries, isButton)) {
        result["entry"] = entry;
        return result;
    }
    result["entry"] =
        numberOf(entries, [](const QAbstractButton* entry) { return entry->isChecked(); });
    result["child"] = numberOf(finder.entryButtons(panel, true), isButton);
    return result;
}

Value enable(const PanelFinder& finder, QWidget* panel, const QAbstractButton& box)
{
    Value result = stepIn(panel, "enable");
    result["entry"] = numberOf(finder.entryButtons(panel, false),
                               [&finder, panel, &box](const QAbstractButton* entry) {
                                   return finder.enableBox(panel, *entry) == &box;
                               });
    result["on"] = box.isChecked();
    return result;
}

Value click(const QWidget* panel, const QAbstractButton& button)
{
    Value result = panel ? stepIn(panel, "click") : step("click");
    if (button.objectName().isEmpty())
        result["text"] = button.text();
    else
        result["object"] = button.objectName();
    return result;
}

Value windowButton(const QAbstractButton& button)
{
    if (button.objectName() == QLatin1String(RowContract::kSave))
        return step("save");
    if (button.objectName() == QLatin1String(RowContract::kCancel))
        return step("cancel");
    const bool isStep = button.objectName() == QLatin1String(RowContract::kUndo) ||
                        button.objectName() == QLatin1String(RowContract::kRedo);
    return isStep ? click(nullptr, button) : Value();
}

Value pathOf(const QString& file)
{
    return file.isEmpty() ? Value() : Value(QFileInfo(file).absoluteFilePath());
}

Value sourceOf(const QString& source)
{
    return source.isEmpty() ? Value() : Value(SourceBook::absolute(source));
}

} // namespace

QWidget* panelAround(const QWidget& widget)
{
    return around(widget, &PanelFinder::isPanel);
}

QWidget* rowAround(const QWidget& widget)
{
    return around(widget, &PanelFinder::isRow);
}

Value size(const QWidget& window)
{
    Value result = step("size");
    result["window"] = pairOf(window.width(), window.height());
    return result;
}

Value onPicture(const char* name, const QPoint& position, const QRect& picture)
{
    const auto place = UICommonMdl::placeOn(picture, position);
    if (!place)
        return {};
    Value result = step(name);
    result["at"] =
        pairOf(normalized(place->x(), picture.width()), normalized(place->y(), picture.height()));
    return result;
}

Value drag(const Value& from, const Value& to)
{
    Value result = step("drag");
    result["from"] = from;
    result["to"] = to;
    return result;
}

Value waitForPicture()
{
    Value result = step("wait");
    result["picture"] = true;
    return result;
}

bool needsPicture(const Value& step)
{
    static const QStringList arrows{QStringLiteral("Left"), QStringLiteral("Right"),
                                    QStringLiteral("Up"), QStringLiteral("Down")};
    const QString key = step["keys"].asString().section(QLatin1Char('+'), -1);
    return step.isMember("at") || arrows.contains(key);
}

Value button(const PanelFinder& finder, const QAbstractButton& button)
{
    QWidget* panel = panelAround(button);
    if (!panel)
        return windowButton(button);
    if (rowAround(button))
        return {};
    if (PanelFinder::isEntryButton(button))
        return pick(finder, panel, button);
    if (button.objectName() == QLatin1String(RowContract::kEnable))
        return enable(finder, panel, button);
    return click(panel, button);
}

Value select(const QString& scene)
{
    return stepIn(scene, "select");
}

Value fold(const QString& scene, bool folded)
{
    Value result = stepIn(scene, "fold");
    result["fold"] = folded;
    return result;
}

Value set(const QWidget& row)
{
    Value result = stepIn(panelAround(row), "set");
    result["key"] = row.objectName();
    result["value"] = RowHand::shown(&row);
    return result;
}

Value typed(const QWidget& row, const QLineEdit& edit)
{
    Value result = stepIn(panelAround(row), "type");
    result["key"] = row.objectName();
    result["text"] = edit.text();
    if (row.findChild<QLineEdit*>() != &edit)
        result["edit"] = edit.objectName();
    return result;
}

Value key(const QString& keys)
{
    Value result = step("key");
    result["keys"] = keys;
    result["to"] = "picture";
    if (keys == QLatin1String(RowContract::kPasteKey))
        result[kClip] = ClipboardLoan::entry();
    return result;
}

Value menu(const PanelFinder& finder, const QWidget& menu, const QAction& action)
{
    const QVariant id = menu.property(RowContract::kEntryId);
    const auto isItsButton = [&id](const QAbstractButton* button) {
        return button->property(RowContract::kEntryId) == id;
    };
    Value result = step("menu");
    for (QWidget* panel : finder.panels()) {
        if (const int entry = numberOf(finder.entryButtons(panel, false), isItsButton)) {
            result["scene"] = panel->objectName();
            result["entry"] = entry;
        }
    }
    result["text"] = action.text().section(QLatin1Char('\t'), 0, 0);
    if (action.objectName() == QLatin1String(RowContract::kPaste))
        result[kClip] = ClipboardLoan::entry();
    return result;
}

Value finish()
{
    return step("finish");
}

Value check()
{
    return step("check");
}

bool isAnswer(const Value& step)
{
    const QString name = step["do"].asString();
    return name == QLatin1String("save") || name == QLatin1String("cancel");
}

Value load(const WorkbenchOptions* before, const WorkbenchOptions& now)
{
    const auto isNew = [before, &now](auto member) {
        return !before || before->*member != now.*member;
    };
    Value result = step("load");
    result["template"] = pathOf(now.templateFile);
    result["config"] = pathOf(now.configFile);
    // Sessions are passed on; passwords are not.
    if (isNew(&WorkbenchOptions::source) && !SourceBook::holdsLogin(now.source))
        result["source"] = sourceOf(now.source);
    const auto addNew = [&result, &now, isNew](const char* name, auto member) {
        if (isNew(member))
            result[name] = now.*member;
    };
    addNew("channel", &WorkbenchOptions::channelId);
    addNew("name", &WorkbenchOptions::channelName);
    addNew("algorithm", &WorkbenchOptions::algorithmId);
    addNew("type", &WorkbenchOptions::algorithmType);
    addNew("code", &WorkbenchOptions::algorithmCode);
    addNew("selection-mode", &WorkbenchOptions::selectionMode);
    if (isNew(&WorkbenchOptions::editable))
        result["editable"] = now.editable ? Value(*now.editable) : Value();
    return result;
}

} // namespace RecordedStep
