#pragma once

#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "scene/basetabelscene.h"
#include "scene/scenefactory.h"
#include "tabel/drawitembutton.h"
#include "tabel/ruleitemwidgettabel.h"
#include "tabel/widgettabelview.h"

#include <QtTest>
#include <QtWidgets>

/**
 * One scene's panel on a template and a configuration given as text, worked on as an operator
 * does: clicks and keys on the widgets, mouse events on a canvas of 1024 x 1024 pixels.
 */
class PanelBench
{
public:
    PanelBench(const QByteArray& templateText, const QByteArray& configText, SceneType type,
               bool selectMode = false)
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
    ~PanelBench()
    {
        if (m_panel)
            m_panel->setRuleData(nullptr);
    }

    RuleData& data() { return *m_data; }
    BaseTabelScene& panel() { return *m_panel; }
    DrawScene& canvas() { return *m_data->getDrawScene(); }
    const RuleParser& parser() const { return m_parser; }
    WidgetTabelView& view() { return m_view; }
    /// The entry at @p position, from 0.
    RuleDataInfo& entry(int position)
    {
        return *m_data->getAllData().at(static_cast<std::size_t>(position));
    }

    /// The widget of that object name in the panel; a failed test and null when there is none.
    QWidget* find(const QString& name)
    {
        auto* widget = m_panel->findChild<QWidget*>(name);
        if (!widget)
            QTest::qFail(qPrintable(QStringLiteral("no widget ") + name), __FILE__, __LINE__);
        return widget;
    }
    template<class T>
    T* find(const QString& name)
    {
        return qobject_cast<T*>(find(name));
    }
    /// Clicks a widget that an operator can click.
    void click(const QString& name) { click(find(name)); }
    void click(QWidget* widget)
    {
        if (!widget || !widget->isVisible() || !widget->isEnabled())
            QTest::qFail("nothing to click there", __FILE__, __LINE__);
        else
            QTest::mouseClick(widget, Qt::LeftButton);
    }
    /// Clicks the option of that stored value in the row @p key.
    void clickOption(const QString& key, const QString& value)
    {
        const auto boxes = find(key)->findChildren<QAbstractButton*>();
        for (QAbstractButton* box : boxes) {
            if (box->property("value").toString() == value)
                QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
        }
    }
    /// Clicks the @p position-th button, from 0, of "drawItems" or "childDrawItems".
    void pick(int position, const QString& table = QStringLiteral("drawItems"))
    {
        click(buttonsOf(table).value(position));
    }
    /// Replaces the text of the row's edit, leaving the edit in progress.
    void type(const QString& key, const QString& text)
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
    /// As type(), finished with Return.
    void enter(const QString& key, const QString& text)
    {
        type(key, text);
        QTest::keyClick(find(key)->findChild<QLineEdit*>(), Qt::Key_Return);
    }

    /// The full texts of a table's buttons, the current one in square brackets.
    QString buttons(const QString& table = QStringLiteral("drawItems"))
    {
        QStringList texts;
        const DrawItemButton* current = find<RuleItemWidgetTabel>(table)->currentButton();
        for (const DrawItemButton* button : buttonsOf(table)) {
            const QString& text = button->fullText();
            texts.append(button == current ? QStringLiteral("[%1]").arg(text) : text);
        }
        return texts.join(QLatin1Char(' '));
    }
    bool isShown(const QString& name) { return find(name)->isVisible(); }

    void press(const QVector<QPoint>& points)
    {
        for (const QPoint& point : points)
            canvas().addDrawPoint(DrawScene::DrawMouseLeftPress, point);
    }
    void pressRight() { canvas().addDrawPoint(DrawScene::DrawMouseRightPress, {}); }
    /// "item key: point count" of each figure of the entry in canvas order; "..." behind those
    /// that are not finished.
    QString figures(int position)
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
    /// Kind of what is selected on the canvas: its template item's key; empty for nothing.
    QString selectedFigure()
    {
        const DrawItem* item = canvas().selectedItem(m_data->getSelectedDataId());
        return item ? item->templateKey() : QString();
    }

private:
    static constexpr int kCanvas = 1024;
    static constexpr int kPanelWidth = 335;

    QList<DrawItemButton*> buttonsOf(const QString& table)
    {
        return find<RuleItemWidgetTabel>(table)->buttons();
    }

    RuleParser m_parser;
    RuleData* m_data = nullptr;
    WidgetTabelView m_view;
    QPointer<BaseTabelScene> m_panel;
};
