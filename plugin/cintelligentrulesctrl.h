#pragma once

#include "plugin/editkeys.h"
#include "plugin/rulesparameters.h"
#include "plugin/savecheck.h"

#include <QList>
#include <QPointer>
#include <QRect>
#include <QWidget>
#include <atomic>
#include <memory>

class BaseTabelScene;
class DrawScene;
class QMouseEvent;
class QRtspVideoWnd;
class RuleData;
class RuleParser;
class Ui_IntelligentRulesCtrl;
namespace CommonData
{
class CInterfaceSetManager;
}

namespace IntelligentRulesUI
{

class EditCommands;
class EntryMenu;
enum class EntryAction;
class FigureHover;
class ReadOnlyLook;

/**
 * Content of one rules window: shows the channel's picture, the panels of the template's scenes,
 * routes the mouse on the picture to the canvas of the selected scene, and sends the edited
 * configuration back to the host.
 *
 * Owns the parser, and with it template and data of the current load; the panels are children of
 * the form's scroll view and let go of the data before it is deleted.
 */
class CIntelligentRulesCtrl : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString usedKey READ usedKey NOTIFY sgnKeyUsed)
    Q_PROPERTY(bool edited READ isEdited NOTIFY sgnEditedChanged)

public:
    explicit CIntelligentRulesCtrl(const QString& widgetId, QWidget* parent = nullptr);
    ~CIntelligentRulesCtrl() override;

    /// Binds the video surface to the host's managers and to this window; null does nothing.
    void setInterfaceSetManager(CommonData::CInterfaceSetManager* manager);
    /// Replaces what is loaded by the host's parameter block @p json. A block that is not JSON or
    /// lacks a required member leaves the window empty.
    void setData(const QString& json, int session);
    void clearData();
    /// Whether a figure is being drawn, for the channel or the algorithm named.
    bool isDrawUnfinished(const QString& channel, const QString& algorithm) const;
    void selectScene(BaseTabelScene* scene);

    /// The key that the window was given last for itself, as sessions write it.
    QString usedKey() const { return editKeyName(m_usedKey); }
    /// Whether the operator has changed something since the load or the last save.
    bool isEdited() const;

signals:
    /// The window is about to do what a key is for.
    void sgnKeyUsed();
    void sgnEditedChanged();
    void sgnNotifyVideoSize(int nWidth, int nHeight);
    /// The window is being destroyed: from now on it takes no messages.
    void sgnEnding();

public slots:
    void sltTrySelectedlScene();
    void sltSave();
    /// Ends edits in progress; false when nothing is loaded any more.
    bool sltFinish();
    /// Tells and shows what a save would be refused for, and saves nothing.
    void sltCheck();
    void sltCancel();
    void sltNotifyVideoSize(int nWidth, int nHeight);
    void OnMouseMove(QMouseEvent* event);
    void OnMousePress(QMouseEvent* event);
    void OnWndClick(int nWndNum, int nPointX, int nPointY);
    void OnWndDbClick(int nWndNum, int nPointX, int nPointY);

private slots:
    void sltPictureRectChanged();
    void sltRowEdited(const QString& key);
    void sltRestored(BaseTabelScene* panel);
    void sltMenuWanted(int dataId, const QPoint& place);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    class LoadGuard;

    static void drawOverPicture(void* deviceContext, void* user);
    static void reportVideoSize(int width, int height, void* user);

    void connectSurface();
    void resetToDefaults();
    void showParameters();
    void initScenes();
    /// Gives the first section the focus, once the window is seen.
    void focusFirstScene();
    bool readDocuments();
    void addPanel(RuleData& sceneData);
    void openPicture();
    /// Takes over where the surface has its picture now, and fits the canvas to it.
    void followPicture();
    void fitCanvas();
    void tellSurface();
    void leavePicture();
    void repaintPicture();
    /// What a press and a move do, of the mouse or by keys; canvas pixels.
    void pressAt(Qt::MouseButton button, const QPoint& at, Qt::KeyboardModifiers modifiers);
    void moveAt(const QPoint& at, Qt::MouseButtons buttons);
    /// Where an action may have changed figures, the canvas says so until they are saved.
    void beginDrawStatus();
    void showSelected(BaseTabelScene& panel);
    /// False when the host has loaded, cleared or deleted the window by then.
    bool finishEdits();
    /// Takes the focus out of what is about to go. False as finishEdits().
    bool leaveFocus();
    /// Lets go of all that is loaded; the focus is elsewhere by then.
    void unload();

    /// Whether nothing stands against a save; else the operator is told and shown.
    bool checkSave();
    void showRefusal(const SaveCheck::Refusal& refusal);
    bool confirmChange();
    bool postResult();
    bool ask(const QString& question);
    void showError(const QString& message);
    void showHint(const QString& text);
    /// Tells beside Save what a save would leave out of the document as it is now.
    void showNotices();
    void sceneChanged();
    void connectEditing();
    /// Ends edits, gives the picture the focus, and does what the key is for.
    void useKey(EditKey key);
    void tellUseless(EditKey key);
    void showKeys();
    /// Does what was chosen in the menu of an entry of @p panel, which need not be there any more.
    void useMenu(BaseTabelScene* panel, int dataId, EntryAction action);
    void editEntry(BaseTabelScene& panel, int dataId, EntryAction action);
    void focusDrawing();
    /// As the mouse does it, or by keys: then a frame shows it.
    void focusPicture(bool byMouse);
    void focusMoved(const QWidget* old, const QWidget* now);
    /// Gives the focus to the selected section where @p focused is in one that is covered.
    void keepOffCovered(const QWidget& focused);
    void sltSectionEntered();
    /// Tells readers of the screen what is on the picture.
    void describePicture();
    bool isEditable() const;
    /// Save and what stands beside it; not there in a read-only window.
    QList<QWidget*> answerButtons() const;
    /// Shows on the buttons what can be undone and done again, and tells whether anything was
    /// edited.
    void showSteps();
    /// What stands left of Save.
    QStringList notices() const;

    std::unique_ptr<Ui_IntelligentRulesCtrl> m_form;
    QRtspVideoWnd* m_playerWin = nullptr; ///< the form's; null until bound to the managers
    EditCommands* m_editing;              ///< owned as a child
    QPointer<EntryMenu> m_menu;           ///< while it is open; a child
    FigureHover* m_hover;                 ///< owned as a child
    ReadOnlyLook* m_look = nullptr;       ///< owned as a child
    SaveCheck m_saveCheck;
    EditKey m_usedKey = EditKey::None;
    QString m_editedRow;                  ///< key of the row whose edit is about to be noted
    std::unique_ptr<RuleParser> m_parser; ///< null while nothing is loaded
    QList<BaseTabelScene*> m_scenes;      ///< children of the form's scroll view
    QString m_widgetId;
    RulesParameters m_parameters;     ///< of the load; the parser has its documents
    DrawScene* m_drawScene = nullptr; ///< canvas of the selected scene; not owned
    // Read on whichever thread the surface reports from, stored on the GUI thread.
    std::atomic<int> m_videoWidth{0};
    std::atomic<int> m_videoHeight{0};
    QRect m_videoRect; ///< the picture inside playerWin, widget pixels
    bool m_rtspOpened = false;
    bool m_wasEdited = false;  ///< as the host was told last
    bool m_isFocusDue = false; ///< a load's focus waits until the window is shown
    int m_loadNumber = 0;      ///< tells loads apart where the host could act in between
};

} // namespace IntelligentRulesUI
