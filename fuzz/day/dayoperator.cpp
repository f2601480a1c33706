#include "fuzz/day/dayoperator.h"

#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "host/api/rowcontract.h"
#include "host/video/qrtspvideownd.h"
#include "scene/basetabelscene.h"
#include "tabel/controltabel.h"
#include "workbench/clipboardloan.h"
#include "workbench/recordedstep.h"
#include "workbench/rowhand.h"
#include "workbench/workbenchwindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <cmath>
#include <numeric>

using kql::Json::ValueType;

namespace
{

constexpr int kExtent = 8192;
constexpr int kBeside = 8;      // pixels beside the picture that count as its border
constexpr int kLongStay = 3000; ///< actions, among which are more steps than can be undone

kql::Json::Value step(const char* name)
{
    kql::Json::Value result(ValueType::Object);
    result["do"] = name;
    return result;
}

kql::Json::Value inScene(const char* name, const QWidget& panel)
{
    kql::Json::Value result = step(name);
    result["scene"] = panel.objectName();
    return result;
}

bool canBePressed(const QAbstractButton* button)
{
    return button->isVisible() && button->isEnabled();
}

} // namespace

DayOperator::DayOperator(WorkbenchWindow& window, const QStringList& configs, unsigned seed)
    : m_window(window), m_finder(window.rulesWindow()), m_configs(configs), m_random(seed)
{
}

int DayOperator::number(int from, int to)
{
    // Not a standard distribution: those choose otherwise from one library to another.
    const auto range = static_cast<unsigned>(to - from) + 1;
    return from + static_cast<int>(m_random() % range);
}

kql::Json::Value DayOperator::nextStep()
{
    --m_staysFor;
    static const std::vector<Choice> idle = {
        {60, &DayOperator::press},         {10, &DayOperator::rightClick},
        {40, &DayOperator::move},          {15, &DayOperator::doubleClick},
        {150, &DayOperator::click},        {120, &DayOperator::pick},
        {60, &DayOperator::pickChild},     {100, &DayOperator::enable},
        {220, &DayOperator::set},          {40, &DayOperator::type},
        {40, &DayOperator::fold},          {60, &DayOperator::select},
        {40, &DayOperator::save},          {6, &DayOperator::cancel},
        {30, &DayOperator::query},         {12, &DayOperator::size},
        {6, &DayOperator::loadAnew},       {2, &DayOperator::close},
        {1, &DayOperator::wait},           {1, &DayOperator::screenshot},
        {150, &DayOperator::travel},       {20, &DayOperator::key},
        {100, &DayOperator::drag},         {20, &DayOperator::pressCorner},
        {100, &DayOperator::keyOnPicture}, {60, &DayOperator::menu},
        {20, &DayOperator::hover},         {20, &DayOperator::hoverButton},
        {10, &DayOperator::check}};
    static const std::vector<Choice> drawing = {
        {500, &DayOperator::press},      {120, &DayOperator::rightClick}, {100, &DayOperator::move},
        {30, &DayOperator::doubleClick}, {100, &DayOperator::travel},     {60, &DayOperator::key},
        {20, &DayOperator::drag},        {60, &DayOperator::keyOnPicture}};
    static const std::vector<Choice> empty = {
        {300, &DayOperator::loadAnew}, {30, &DayOperator::query},  {20, &DayOperator::move},
        {20, &DayOperator::save},      {20, &DayOperator::cancel}, {10, &DayOperator::size}};
    const auto* panel = qobject_cast<BaseTabelScene*>(m_finder.panel({}));
    const bool isEditable = m_finder.windowButton(QStringLiteral("btnSave"))->isVisible();
    if (!panel || (!isEditable && happens(5)))
        return choose(empty);
    const bool isDrawing = panel->getDrawScene() && panel->getDrawScene()->HasDrawUnfinished();
    return choose(isDrawing && happens(60) ? drawing : idle);
}

kql::Json::Value DayOperator::choose(const std::vector<Choice>& choices)
{
    const int all = std::accumulate(choices.begin(), choices.end(), 0,
                                    [](int sum, const Choice& c) { return sum + c.weight; });
    constexpr int kTries = 100;
    for (int i = 0; i < kTries; ++i) {
        int left = number(1, all);
        auto chosen = choices.begin();
        while (left > chosen->weight)
            left -= (chosen++)->weight;
        Value made = (this->*chosen->make)();
        if (!made.isNull())
            return made;
    }
    return query();
}

QPoint DayOperator::position(const QRect& picture)
{
    if (happens(10))
        return borderPosition(picture);
    const QPoint end(kExtent * (picture.width() - 1) / picture.width(),
                     kExtent * (picture.height() - 1) / picture.height());
    const QPoint anywhere(number(0, end.x()), number(0, end.y()));
    if (happens(50))
        return anywhere;
    constexpr int kNear = 900;
    const QPoint near = m_last + QPoint(number(-kNear, kNear), number(-kNear, kNear));
    return {qBound(0, near.x(), end.x()), qBound(0, near.y(), end.y())};
}

/// On a border of the picture, or beside it as far as that counts and there is room.
QPoint DayOperator::borderPosition(const QRect& picture)
{
    const QMargins beside(kBeside, kBeside, kBeside, kBeside);
    const QRect room = picture.marginsAdded(beside) & m_window.videoSurface()->rect();
    QPoint at(number(room.left(), room.right()), number(room.top(), room.bottom()));
    const bool isFirst = happens(50);
    if (happens(50))
        at.setX(isFirst ? number(room.left(), picture.left())
                        : number(picture.right(), room.right()));
    else
        at.setY(isFirst ? number(room.top(), picture.top())
                        : number(picture.bottom(), room.bottom()));
    const auto scaled = [](int pixel, int extent) {
        const double exact = double(pixel) * kExtent / extent;
        return static_cast<int>(pixel < 0 || pixel > extent ? std::ceil(exact) : exact);
    };
    at -= picture.topLeft();
    return {scaled(at.x(), picture.width()), scaled(at.y(), picture.height())};
}

kql::Json::Value DayOperator::onPicture(const char* name)
{
    const QRect picture = m_window.videoSurface()->paneRect(0);
    if (picture.isEmpty())
        return {};
    m_last = position(picture);
    Value result = step(name);
    result["at"].append(m_last.x());
    result["at"].append(m_last.y());
    return result;
}

/// @p step, sometimes with a key held meanwhile.
kql::Json::Value DayOperator::held(Value step)
{
    if (!step.isNull() && happens(15))
        step["with"] = happens(70) ? "Ctrl" : "Shift";
    return step;
}

kql::Json::Value DayOperator::press()
{
    Value result = held(onPicture("press"));
    if (!result.isNull())
        result["button"] = "left";
    return result;
}

kql::Json::Value DayOperator::rightClick()
{
    Value result = onPicture("press");
    if (!result.isNull())
        result["button"] = "right";
    return result;
}

/// Mostly at a point of the current entry's figures.
kql::Json::Value DayOperator::corner()
{
    const auto* panel = qobject_cast<BaseTabelScene*>(m_finder.panel({}));
    const DrawScene* canvas = panel ? panel->getDrawScene() : nullptr;
    const QList<DrawItem*> figures =
        canvas ? canvas->getItemListByDataId(canvas->currentDataId()) : QList<DrawItem*>();
    const QVector<QPoint> points =
        figures.isEmpty() ? QVector<QPoint>() : oneOf(figures)->value().points();
    if (points.isEmpty() || happens(20))
        return onPicture("press")["at"];
    m_last = points[number(0, points.size() - 1)];
    Value at;
    at.append(qBound(0, m_last.x(), kExtent));
    at.append(qBound(0, m_last.y(), kExtent));
    return at;
}

kql::Json::Value DayOperator::drag()
{
    const QRect picture = m_window.videoSurface()->paneRect(0);
    if (picture.isEmpty())
        return {};
    Value result = step("drag");
    result["from"] = corner();
    const QPoint to = position(picture);
    result["to"].append(to.x());
    result["to"].append(to.y());
    if (happens(30))
        result["with"] = happens(90) ? "Ctrl" : "Shift";
    return result;
}

kql::Json::Value DayOperator::pressCorner()
{
    if (m_window.videoSurface()->paneRect(0).isEmpty())
        return {};
    Value result = step("press");
    result["button"] = "left";
    result["at"] = corner();
    if (happens(60))
        result["with"] = happens(80) ? "Shift" : "Ctrl";
    return result;
}

kql::Json::Value DayOperator::move()
{
    return onPicture("move");
}

kql::Json::Value DayOperator::hover()
{
    return onPicture("hover");
}

kql::Json::Value DayOperator::hoverButton()
{
    Value result = pickFrom(happens(30));
    if (result.isNull())
        return result;
    result["do"] = "hover";
    if (result.isMember("child"))
        result["entry"] = 1;
    return result;
}

kql::Json::Value DayOperator::doubleClick()
{
    Value result = held(onPicture("double"));
    if (!result.isNull() && happens(30))
        result["button"] = "right";
    return result;
}

BaseTabelScene* DayOperator::openPanel() const
{
    auto* panel = qobject_cast<BaseTabelScene*>(m_finder.panel({}));
    return panel && !panel->getFold() ? panel : nullptr;
}

kql::Json::Value DayOperator::click()
{
    BaseTabelScene* panel = openPanel();
    if (!panel)
        return {};
    QList<QAbstractButton*> buttons;
    for (QAbstractButton* button : panel->findChildren<QAbstractButton*>()) {
        const bool isNamed = m_finder.part(panel, button->objectName()) == button;
        const bool isOther = PanelFinder::isEntryButton(*button) ||
                             RecordedStep::rowAround(*button) ||
                             button->objectName() == QLatin1String("enable");
        if (isNamed && !isOther && canBePressed(button))
            buttons.append(button);
    }
    if (buttons.isEmpty())
        return {};
    Value result = inScene("click", *panel);
    result["object"] = oneOf(buttons)->objectName();
    return result;
}

kql::Json::Value DayOperator::pickFrom(bool children)
{
    BaseTabelScene* panel = openPanel();
    if (!panel)
        return {};
    const QList<QAbstractButton*> buttons = m_finder.entryButtons(panel, children);
    if (buttons.isEmpty())
        return {};
    const int index = number(0, buttons.size() - 1);
    if (!canBePressed(buttons[index]))
        return {};
    Value result = inScene("pick", *panel);
    result[children ? "child" : "entry"] = index + 1;
    return result;
}

kql::Json::Value DayOperator::pick()
{
    return pickFrom(false);
}

/// Looks into the menu of an entry first.
kql::Json::Value DayOperator::menu()
{
    Value result = pickFrom(false);
    if (result.isNull())
        return result;
    QWidget* const panel = m_finder.panel({});
    QAbstractButton* const button =
        m_finder.entryButtons(panel, false).at(result["entry"].asInt() - 1);
    QContextMenuEvent wanted(QContextMenuEvent::Keyboard, button->rect().center());
    QApplication::sendEvent(button, &wanted);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu)
        return {};
    QStringList offered;
    for (const QAction* action : menu->actions()) {
        if (!action->isSeparator() && action->isEnabled())
            offered.append(action->text().section(QLatin1Char('\t'), 0, 0));
    }
    menu->close();
    result["do"] = "menu";
    result["text"] = oneOf(offered);
    return result["text"].asString() == QLatin1String("Paste") ? withClip(result) : result;
}

kql::Json::Value DayOperator::withClip(Value step)
{
    if (const Value entry = ClipboardLoan::entry(); !entry.isNull())
        step[RecordedStep::kClip] = entry;
    return step;
}

kql::Json::Value DayOperator::pickChild()
{
    return pickFrom(true);
}

kql::Json::Value DayOperator::enable()
{
    BaseTabelScene* panel = openPanel();
    if (!panel)
        return {};
    const QList<QAbstractButton*> buttons = m_finder.entryButtons(panel, false);
    if (buttons.isEmpty())
        return {};
    const int index = number(0, buttons.size() - 1);
    const QAbstractButton* box = m_finder.enableBox(panel, *buttons[index]);
    if (!box || !canBePressed(box))
        return {};
    Value result = inScene("enable", *panel);
    result["entry"] = index + 1;
    result["on"] = happens(50);
    return result;
}

kql::Json::Value DayOperator::row(const char* name, ControlTabel*& found)
{
    BaseTabelScene* panel = openPanel();
    if (!panel)
        return {};
    QList<ControlTabel*> rows = panel->findChildren<ControlTabel*>();
    const auto isUnusable = [](const ControlTabel* row) {
        return !row->isVisible() || !RowHand::isUsable(row);
    };
    rows.erase(std::remove_if(rows.begin(), rows.end(), isUnusable), rows.end());
    if (rows.isEmpty())
        return {};
    found = oneOf(rows);
    Value result = inScene(name, *panel);
    result["key"] = found->objectName();
    return result;
}

kql::Json::Value DayOperator::set()
{
    ControlTabel* chosen = nullptr;
    Value result = row("set", chosen);
    if (chosen)
        result["value"] = valueFor(*chosen);
    return result;
}

kql::Json::Value DayOperator::type()
{
    ControlTabel* chosen = nullptr;
    Value result = row("type", chosen);
    if (!chosen || !chosen->findChild<QLineEdit*>())
        return {};
    result["text"] = text();
    return result;
}

kql::Json::Value DayOperator::valueFor(const QWidget& row)
{
    const int kind = row.property(RowContract::kKind).toInt();
    if (kind == RowContract::Text)
        return text();
    const QList<QAbstractButton*> boxes = row.findChildren<QAbstractButton*>();
    if (kind == RowContract::Switch)
        return happens(50);
    if (kind == RowContract::Choice)
        return oneOf(boxes)->property(RowContract::kOption).toString();
    Value list(ValueType::Array);
    if (kind == RowContract::Choices) {
        for (const QAbstractButton* box : boxes) {
            if (happens(40))
                list.append(box->property(RowContract::kOption).toString());
        }
        return list;
    }
    for (int i = 0; i < 2; ++i)
        list.append(happens(20) ? Value() : Value(number(-2, 400)));
    return list;
}

QString DayOperator::text()
{
    static const QStringList texts{QString(),
                                   QStringLiteral("-"),
                                   QStringLiteral("Gate-7"),
                                   QStringLiteral("<b>%s</b>"),
                                   QStringLiteral("北门_2"),
                                   QStringLiteral("1e9"),
                                   QStringLiteral("99999999999"),
                                   QString(300, QLatin1Char('x'))};
    if (happens(20))
        return oneOf(texts);
    if (happens(20))
        return QStringLiteral("Zone-%1").arg(number(1, 99));
    const int whole = number(-3, happens(50) ? 12 : 700);
    return happens(20) ? QStringLiteral("%1.%2").arg(whole).arg(number(0, 999))
                       : QString::number(whole);
}

kql::Json::Value DayOperator::fold()
{
    Value result = select();
    if (result.isNull())
        return result;
    result["do"] = "fold";
    result["fold"] = happens(40);
    return result;
}

kql::Json::Value DayOperator::select()
{
    QList<BaseTabelScene*> panels;
    for (BaseTabelScene* panel : m_window.rulesWindow()->findChildren<BaseTabelScene*>()) {
        if (panel->ruleData() && panel->isEnabled())
            panels.append(panel);
    }
    return panels.isEmpty() ? Value() : inScene("select", *oneOf(panels));
}

/// Most often several times the same way.
kql::Json::Value DayOperator::travel()
{
    if (!happens(70))
        m_isGoingBack = happens(60);
    Value result = step(happens(80) ? "key" : "click");
    if (result["do"].asString() == QLatin1String("key")) {
        result["keys"] = m_isGoingBack ? "Ctrl+Z" : happens(70) ? "Ctrl+Y" : "Ctrl+Shift+Z";
        result["to"] = "picture";
        return result;
    }
    const QString name =
        QString::fromLatin1(m_isGoingBack ? RowContract::kUndo : RowContract::kRedo);
    result["object"] = name;
    return canBePressed(m_finder.windowButton(name)) ? result : Value();
}

kql::Json::Value DayOperator::key()
{
    static const QStringList keys{QStringLiteral("Backspace"), QStringLiteral("Escape"),
                                  QStringLiteral("Return"),    QStringLiteral("Delete"),
                                  QStringLiteral("Ctrl+C"),    QStringLiteral("Ctrl+V"),
                                  QStringLiteral("Ctrl+D"),    QStringLiteral("F1")};
    Value result = step("key");
    result["keys"] = oneOf(keys);
    result["to"] = "picture";
    return result["keys"].asString() == QLatin1String(RowContract::kPasteKey) ? withClip(result)
                                                                              : result;
}

/// Moves the cross-hair, or what was taken last, and presses there.
kql::Json::Value DayOperator::keyOnPicture()
{
    static const QStringList ways{QStringLiteral("Left"), QStringLiteral("Right"),
                                  QStringLiteral("Up"), QStringLiteral("Down")};
    Value result = step("key");
    const bool isMove = happens(60);
    result["keys"] = isMove ? (happens(60) ? QStringLiteral("Shift+") : QString()) + oneOf(ways)
                            : QStringLiteral("Space");
    if (isMove)
        result["times"] = number(1, 30);
    result["to"] = "picture";
    return result;
}

kql::Json::Value DayOperator::save()
{
    if (!canBePressed(m_finder.windowButton(QStringLiteral("btnSave"))))
        return {};
    Value result = step("save");
    result["answer"] = happens(60) ? "Yes" : "No";
    return result;
}

kql::Json::Value DayOperator::cancel()
{
    if (!canBePressed(m_finder.windowButton(QStringLiteral("btnCancel"))))
        return {};
    Value result = step("cancel");
    result["answer"] = !stays() && happens(25) ? "Yes" : "No";
    return result;
}

kql::Json::Value DayOperator::check()
{
    return step("check");
}

kql::Json::Value DayOperator::query()
{
    return step("query");
}

kql::Json::Value DayOperator::close()
{
    return stays() ? Value() : step("close");
}

kql::Json::Value DayOperator::loadAnew()
{
    return stays() ? Value() : load();
}

kql::Json::Value DayOperator::load()
{
    m_staysFor = happens(8) ? kLongStay : 0;
    Value result = step("load");
    result["template"] = m_window.options().templateFile;
    result["config"] = happens(10) ? Value() : Value(oneOf(m_configs));
    result["channel"] = QString::number(number(1, 3));
    result["selection-mode"] = happens(15);
    result["editable"] = happens(4) ? Value(true) : Value();
    return result;
}

kql::Json::Value DayOperator::size()
{
    Value result = step("size");
    result["window"].append(number(900, 1600));
    result["window"].append(number(600, 1000));
    return result;
}

kql::Json::Value DayOperator::wait()
{
    Value result = step("wait");
    result["ms"] = 0;
    return result;
}

kql::Json::Value DayOperator::screenshot()
{
    Value result = step("screenshot");
    result["file"] = "day.png";
    return result;
}
