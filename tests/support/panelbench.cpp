#include "tests/support/panelbench.h"

#include "scene/scenefactory.h"
#include "tabel/drawitembutton.h"
#include "tabel/ruleitemwidgettabel.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QtTest>

namespace
{

constexpr int kCanvas = 1024;
constexpr int kPanelWidth = 335;

} // namespace

PanelBench::PanelBench(const QByteArray& templateText, const QByteArray& configText, SceneType type,
                       bool selectMode)
{
    if (!m_parser.parseTemplate(QString::fromUtf8(templateText)) ||
        !m_parser.readData(QString::fromUtf8(configText)))
        qFatal("template or configuration of the test is not usable");
    m_parser.findLosses();
    m_data = m_parser.getData(type);
    m_view.setFixedWidth(kPanelWidth);
    m_view.resize(kPanelWidth, 600);
    m_panel = createScene(type, &m_view);
    m_panel->setSelectMode(selectMode);
    m_panel->setRuleData(m_data);
    m_panel->SetDrawStatus(false);
    m_view.addWidgetLayout(m_panel);
    canvas().setCanvasSize(kCanvas, kCanvas);
    m_panel->setSelected(true);
    m_view.show();
    QApplication::setActiveWindow(&m_view);
}

PanelBench::~PanelBench()
{
    if (m_panel)
        m_panel->setRuleData(nullptr);
}

DrawScene& PanelBench::canvas()
{
    return *m_data->getDrawScene();
}

RuleDataInfo& PanelBench::entry(int position)
{
    return *m_data->getAllData().at(static_cast<std::size_t>(position));
}

QWidget* PanelBench::find(const QString& name)
{
    auto* widget = m_panel->findChild<QWidget*>(name);
    if (!widget)
        QTest::qFail(qPrintable(QStringLiteral("no widget ") + name), __FILE__, __LINE__);
    return widget;
}

void PanelBench::click(const QString& name)
{
    click(find(name));
}

void PanelBench::click(QWidget* widget)
{
    if (!widget || !widget->isVisible() || !widget->isEnabled())
        QTest::qFail("nothing to click there", __FILE__, __LINE__);
    else
        QTest::mouseClick(widget, Qt::LeftButton);
}

void PanelBench::clickOption(const QString& key, const QString& value)
{
    const auto boxes = find(key)->findChildren<QAbstractButton*>();
    for (QAbstractButton* box : boxes) {
        if (box->property("value").toString() == value)
            QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
    }
}

QList<DrawItemButton*> PanelBench::buttonsOf(const QString& table)
{
    return find<RuleItemWidgetTabel>(table)->buttons();
}

void PanelBench::pick(int position, const QString& table)
{
    click(buttonsOf(table).value(position));
}

void PanelBench::type(const QString& key, const QString& text)
{
    auto* edit = find(key)->findChild<QLineEdit*>();
    QTest::mouseClick(edit, Qt::LeftButton);
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    // Keys by their text: input methods deliver characters that no key stands for.
    for (const QChar& character : text) {
        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
        QApplication::sendEvent(edit, &press);
    }
}

void PanelBench::enter(const QString& key, const QString& text)
{
    type(key, text);
    QTest::keyClick(find(key)->findChild<QLineEdit*>(), Qt::Key_Return);
}

QString PanelBench::buttons(const QString& table)
{
    QStringList texts;
    const DrawItemButton* current = find<RuleItemWidgetTabel>(table)->currentButton();
    for (const DrawItemButton* button : buttonsOf(table)) {
        const QString& text = button->fullText();
        texts.append(button == current ? QStringLiteral("[%1]").arg(text) : text);
    }
    return texts.join(QLatin1Char(' '));
}

bool PanelBench::isShown(const QString& name)
{
    return find(name)->isVisible();
}

void PanelBench::press(const QVector<QPoint>& points)
{
    for (const QPoint& point : points)
        canvas().addDrawPoint(DrawScene::DrawMouseLeftPress, point);
}

void PanelBench::pressRight()
{
    canvas().addDrawPoint(DrawScene::DrawMouseRightPress, {});
}

QString PanelBench::figures(int position)
{
    QStringList texts;
    const QList<DrawItem*> items = canvas().getItemListByDataId(entry(position).id());
    for (const DrawItem* item : items) {
        const QString dots = item->isFinished() ? QString() : QStringLiteral("...");
        texts.append(item->templateKey() + QStringLiteral(": ") +
                     QString::number(item->getPoints().size()) + dots);
    }
    return texts.join(QStringLiteral(", "));
}

QString PanelBench::selectedFigure()
{
    const DrawItem* item = canvas().selectedItem(m_data->getSelectedDataId());
    return item ? item->templateKey() : QString();
}
