#pragma once

#include "draw/drawitem.h"
#include "draw/figurelayer.h"
#include "draw/figurelook.h"

#include <QList>
#include <QObject>
#include <QPoint>
#include <QSize>
#include <QString>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

class FigureIndex;
class ForbidenArea;
struct FigureSurroundings;

/**
 * The canvas of one scene: holds every figure of it, turns mouse events into points of the
 * selected figure, keeps figures out of forbidden areas and paints everything over the picture.
 * All sizes and positions are canvas pixels.
 */
class DrawScene : public QObject, private DrawItemListener
{
    Q_OBJECT

public:
    enum DrawMouseType {
        DrawMouseLeftPress = 1,
        DrawMouseRightPress = 2,
        DrawMouseMove = 3,
    };

    explicit DrawScene(QObject* parent = nullptr);
    ~DrawScene() override;

    /// Replaces this scene's figures by copies of @p other's, with item ids of their own.
    void copyItemsFrom(const DrawScene& other);

    void setCanvasSize(int width, int height);
    QSize canvasSize() const { return m_canvasSize; }

    /// Takes @p item in, as a child of the item @p parentId when that exists, and returns it;
    /// null for null.
    DrawItem* addItem(std::unique_ptr<DrawItem> item, int parentId);
    /// Null for ids below 1 and unknown ids.
    DrawItem* findItem(int id) const;
    /// Removes and deletes an item, with its children.
    void removeItem(int id);
    /// Removes and deletes all items; the message goes, too.
    void clear();

    /// Kind None with a data id below 1: all items. Otherwise the items of that very kind and,
    /// for data ids from 1, of that entry; so None with a data id lists figureless items only.
    QList<DrawItem*> getItemList(BaseDrawType type, int dataId) const;
    int itemCount(BaseDrawType type, int dataId) const;
    /// The items of one entry, of all kinds, in the order added.
    QList<DrawItem*> getItemListByDataId(int dataId) const;
    DrawItem* getFirstDrawItem() const;

    /// On: only figures of the current data id are painted and selectable.
    void setDrawByDataId(bool on) { m_drawByDataId = on; }
    void setCurrentDataId(int dataId) { m_currentDataId = dataId; }
    int currentDataId() const { return m_currentDataId; }

    /// Selects the figure of item @p itemId and unselects the others; hints at drawing it when
    /// it is not finished. An unknown id (0) clears the selection.
    void setSelected(int itemId, int dataId);
    DrawItem* selectedItem(int dataId) const;

    /// One mouse event at @p point; moves the rubber band, adds a point or finishes a figure.
    void addDrawPoint(DrawMouseType type, const QPoint& point);
    /// Takes the last point of the figure being drawn back; false when it has none.
    bool takeBackPoint();
    /// Takes back all points of the figure being drawn; false when it has none.
    bool takeBackPoints();
    /// Goes on with the figure being drawn, which has points already: what is forbidden to it is
    /// what was while they were drawn.
    void resumeDrawing();
    /// Selects no figure of that entry, and says no more what is to be drawn.
    void selectNothing(int dataId);
    /// Clears the item's figure so that it is drawn again.
    void redrawItem(int id);

    /// Shows @p figure in the place of the one of item @p itemId until there is none again; with
    /// @p isRefused as one that may not lie there. An unknown id does nothing.
    void setPreview(int itemId, const std::optional<Figure>& figure, bool isRefused);
    bool hasPreview() const { return m_previewed; }
    /// The finished figures by where they are.
    const FigureIndex& figuresByPlace() const;
    FigureSurroundings surroundings() const;
    /// Another value after a mouse event that made the canvas look different.
    std::pair<quint64, bool> look() const;

    /// Emphasises the figures of an entry, or one of them alone, until it is asked otherwise; 0 for
    /// none. Changes no selection. Whether the canvas looks different now.
    bool emphasise(int dataId, int itemId) { return m_looks.emphasise(dataId, itemId); }
    /// Marks the figure of an item as one for which a save was refused; 0 for none.
    bool setFaulty(int itemId) { return m_looks.setFaulty(itemId); }

    /// Whether a left press would go to a figure that is not finished.
    bool isDrawing() const { return itemBeingDrawn(); }
    bool HasDrawUnfinished() const;
    void SetDrawOver(bool over);

    void draw(Gdiplus::Graphics* graphics);
    /// Says the message again when the figure that it names has got another label.
    void refreshMessage();
    /// Frees what is kept for the next draw(), which then paints everything anew.
    void dropPainting();

    /// Why the last left press added no point; None again once a point was taken, and for another
    /// figure.
    DrawRefusal refusal() const { return m_refusal; }
    /// Says why a figure was not corrected; None where it was.
    void setRefusal(DrawRefusal refusal) { m_refusal = refusal; }

    /// The hint shown in the middle of the canvas; empty for none.
    const QString& message() const { return m_message; }
    bool isPointForbidden(const QPoint& point) const;

signals:
    /// After every change of the selection or of a figure's completion.
    void sgnSelectedStatusChange();

private:
    void itemAdded(DrawItem& item) override;
    void itemGone(DrawItem& item) override;
    void itemIdsChanged() override;

    void removeAll();
    DrawItem* own(std::unique_ptr<DrawItem> item);
    void list(DrawItem& item);
    bool isSkipped(const DrawItem& item, int dataId) const;
    DrawItem* findSelected(int dataId) const;
    void pressLeft(DrawItem& item, const QPoint& point);
    void finishDrawing(const DrawItem& item);
    void setDrawnPoints(const DrawItem& item, const QVector<QPoint>& points);
    void calcDrawForbidenArea(const DrawItem* item);
    void setForbidenArea(std::unique_ptr<ForbidenArea> area, const DrawItem* item);
    std::unique_ptr<ForbidenArea> ownForbidenArea(const DrawItem& item) const;
    void renewForbidenArea(const DrawItem& item);
    std::unique_ptr<ForbidenArea> forbidenArea(const DrawItem& item, const DrawItem* except) const;
    DrawItem* itemBeingDrawn() const;
    void drawLayer(Gdiplus::Graphics& graphics, FigureLayer& layer,
                   const std::vector<PaintedFigure>& figures, int parts) const;
    void drawMessage(Gdiplus::Graphics& graphics) const;
    QString getBeginDrawMsg(const DrawItem* item) const;
    QString getEndDrawMsg(const DrawItem* item) const;

    QList<DrawItem*> m_items; ///< all items, children too, as added; not owned
    /// The same by data id, of equal ids in the order added; empty until they are asked for.
    mutable std::multimap<int, DrawItem*> m_byDataId;
    std::vector<std::unique_ptr<DrawItem>> m_roots; ///< the items without a parent
    QSize m_canvasSize{0, 0};
    QString m_message;
    DrawRefusal m_refusal = DrawRefusal::None;
    std::unique_ptr<ForbidenArea> m_forbidenArea; ///< null: no point is forbidden
    const DrawItem* m_forbidenFor = nullptr;      ///< whose standing area it is; not owned
    quint64 m_forbidenRevision = 0;               ///< another one whenever the area is another
    FigureLooks m_looks;
    FigureLayer m_ground; ///< the area, bands, and all casings while a figure is being drawn
    FigureLayer m_below;  ///< the figures before the one being drawn
    FigureLayer m_above;  ///< the figures after it
    bool m_drawByDataId = false;
    int m_currentDataId = -1;

    const DrawItem* m_previewed = nullptr; ///< not owned; null for none

    mutable std::unique_ptr<const FigureIndex> m_byPlace; ///< null: not made since items changed
    mutable quint64 m_byPlaceRevision = 0;
    // The first selected item, good until the revision changes.
    mutable DrawItem* m_foundSelected = nullptr; ///< not owned
    mutable std::optional<quint64> m_foundAtRevision;
};
