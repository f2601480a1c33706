#include "scene/scenewidgets.h"

#include "host/api/rowcontract.h"
#include "scene/scenetitlebar.h"
#include "tabel/actionbar.h"
#include "tabel/controlitemwidgettabel.h"
#include "tabel/elidedbutton.h"
#include "tabel/plaintext.h"
#include "tabel/ruleitemwidgettabel.h"
#include "tabel/rulewidgettabel.h"
#include "tabel/titlelabel.h"

#include <QPushButton>

namespace
{

constexpr int kMargin = 5;
constexpr int kBarPadding = 3;
constexpr int kHintHeight = 20;
constexpr int kButtonsPerRow = 3;
const QSize kBarButtonSize(143, 28);
const QSize kActionButtonSize(80, 26);

} // namespace

SceneWidgets::SceneWidgets(WidgetTabel* panel)
    : titleBar(new SceneTitleBar(panel)),
      ruleFucBar(new RuleWidgetTabel(panel)),
      drawItems(new RuleItemWidgetTabel(panel)),
      actions(new ActionBar(panel)),
      hint(new TitleLabel(panel)),
      childFucBar(new RuleWidgetTabel(panel)),
      childDrawItems(new RuleItemWidgetTabel(panel)),
      controls(new ControlItemWidgetTabel(panel)),
      mask(new QWidget(panel))
{
    nameWidgets();
    buildBar(ruleFucBar, kBarButtonSize);
    buildBar(childFucBar, kBarButtonSize);
    buildBar(actions, kActionButtonSize);
    redrawButton = buildAction(QStringLiteral("redraw"), tr("Redraw"));
    deleteButton = buildAction(QStringLiteral("delete"), tr("Delete"));
    controls->setPaddingLeft(0);
    controls->setPaddingTop(kMargin);
    mask->setAttribute(Qt::WA_StyledBackground);
    mask->hide();
    fillPanel(panel);
}

void SceneWidgets::nameActions(const QString& target) const
{
    const auto name = [&target](QPushButton* button, const QString& action) {
        const QString named = target.isEmpty() ? QString() : action.arg(target);
        button->setToolTip(PlainText::toolTip(named));
        button->setAccessibleName(named);
    };
    name(redrawButton, tr("Redraw %1"));
    name(deleteButton, tr("Delete %1"));
}

void SceneWidgets::fitHint() const
{
    hint->ensurePolished();
    hint->setFixedHeight(qMax(kHintHeight, hint->fontMetrics().height()));
}

void SceneWidgets::nameWidgets()
{
    ruleFucBar->setObjectName(QStringLiteral("ruleFucBar"));
    drawItems->setObjectName(QString::fromLatin1(RowContract::kEntries));
    actions->setObjectName(QStringLiteral("actions"));
    hint->setObjectName(QString::fromLatin1(RowContract::kHint));
    childFucBar->setObjectName(QStringLiteral("childFucBar"));
    childDrawItems->setObjectName(QString::fromLatin1(RowContract::kFigures));
    controls->setObjectName(QStringLiteral("controls"));
    mask->setObjectName(QString::fromLatin1(RowContract::kMask));
}

void SceneWidgets::buildBar(WidgetTabel* bar, const QSize& buttonSize)
{
    bar->setItemType(ItemSizeType::ItemFixSize);
    bar->setFixCountLimit(1, kButtonsPerRow);
    bar->setItemSize(buttonSize);
    bar->setPaddingLeft(kMargin);
    bar->setPaddingTop(kBarPadding);
}

QPushButton* SceneWidgets::buildAction(const QString& name, const QString& text)
{
    auto* button = new ElidedButton(text, actions);
    button->setObjectName(name);
    button->setVisible(true);
    actions->addWidget(button, false);
    return button;
}

void SceneWidgets::fillPanel(WidgetTabel* panel)
{
    panel->setPaddingLeft(kMargin);
    panel->setPaddingTop(kMargin);
    panel->addWidgetLayout(ruleFucBar, false);
    panel->addWidgetLayout(drawItems, false);
    panel->addWidgetLayout(actions, false);
    panel->addWidget(hint, false);
    panel->addWidgetLayout(childFucBar, false);
    panel->addWidgetLayout(childDrawItems, false);
    panel->addWidgetLayout(controls, false);
}
