#pragma once

#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "Protocol/ruleparser.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "scene/basetabelscene.h"
#include "tabel/widgettabelview.h"

#include <QPoint>
#include <QPointer>
#include <QStringList>
#include <QVector>

class DrawItemButton;

/**
 * One scene's panel on a template and a configuration given as text, worked on as an operator
 * does: clicks and keys on the widgets, mouse events on a canvas of 1024 x 1024 pixels.
 */
class PanelBench
{
public:
    PanelBench(const QByteArray& templateText, const QByteArray& configText, SceneType type,
               bool selectMode = false);
    ~PanelBench();

    RuleData& data() { return *m_data; }
    BaseTabelScene& panel() { return *m_panel; }
    DrawScene& canvas();
    const RuleParser& parser() const { return m_parser; }
    WidgetTabelView& view() { return m_view; }
    /// The entry at @p position, from 0.
    RuleDataInfo& entry(int position);

    /// The widget of that object name in the panel; a failed test and null when there is none.
    QWidget* find(const QString& name);
    template<class T>
    T* find(const QString& name)
    {
        return qobject_cast<T*>(find(name));
    }
    /// Clicks a widget that an operator can click.
    void click(const QString& name);
    void click(QWidget* widget);
    /// Clicks the option of that stored value in the row @p key.
    void clickOption(const QString& key, const QString& value);
    /// Clicks the @p position-th button, from 0, of "drawItems" or "childDrawItems".
    void pick(int position, const QString& table = QStringLiteral("drawItems"));
    /// Replaces the text of the row's edit, leaving the edit in progress.
    void type(const QString& key, const QString& text);
    /// As type(), finished with Return.
    void enter(const QString& key, const QString& text);

    /// The full texts of a table's buttons, the current one in square brackets.
    QString buttons(const QString& table = QStringLiteral("drawItems"));
    bool isShown(const QString& name);

    void press(const QVector<QPoint>& points);
    void pressRight();
    /// "item key: point count" of each figure of the entry in canvas order; "..." behind those
    /// that are not finished.
    QString figures(int position);
    /// Kind of what is selected on the canvas: its template item's key; empty for nothing.
    QString selectedFigure();

private:
    QList<DrawItemButton*> buttonsOf(const QString& table);

    RuleParser m_parser;
    RuleData* m_data = nullptr;
    WidgetTabelView m_view;
    QPointer<BaseTabelScene> m_panel;
};
