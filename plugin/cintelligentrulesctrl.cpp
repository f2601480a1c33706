#include "plugin/cintelligentrulesctrl.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruleparser.h"
#include "draw/drawscene.h"
#include "draw/shortenedtext.h"
#include "host/api/kqmessagebox.h"
#include "host/api/limits.h"
#include "host/gdiplus.h"
#include "host/video/qrtspvideownd.h"
#include "plugin/editcommands.h"
#include "plugin/entrymenu.h"
#include "plugin/figurehover.h"
#include "plugin/focusring.h"
#include "plugin/picturewords.h"
#include "plugin/readonlylook.h"
#include "plugin/resultmessage.h"
#include "plugin/windowskin.h"
#include "scene/basetabelscene.h"
#include "scene/scenefactory.h"
#include "tabel/focus.h"
#include "tabel/plaintext.h"
#include "tabel/scrolling.h"
#include "tabel/widgettabel.h"
#include "ui_IntelligentRulesCtrl.h"

#include <QAccessible>
#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyleOption>

#include <algorithm>
#include <utility>

namespace IntelligentRulesUI
{

namespace
{

constexpr int kQuestionType = 1;
constexpr char kPictureRectChanged[] = "sgnPictureRectChanged(int)";
/// The surface's property that is true while presses on the picture draw.
constexpr char kDrawing[] = "drawing";
// Of the button bar left of Save, in pixels.
constexpr int kEmptyWidth = 804;

/// Style sheet of the Save button: it looks the same under every skin.
constexpr char kSaveButtonStyle[] =
    "\t\t\t\tKQGUI--KQPushButton{width:70px;height:28px;background-color: #ffffff;"
    "border: 1px solid #e1e3e6;border-radius: 4px;color: #3c3f42;outline: none;}"
    "\t\t\t\tKQGUI--KQPushButton:focus{width:70px;height:28px;background-color: #ffffff;"
    "border: 1px solid #e1e3e6;border-radius: 4px;color: #3c3f42;outline: none;}"
    "\t\t\t\tKQGUI--KQPushButton:hover{background-color: #ffffff;border: 1px solid #82aaff;"
    "border-radius: 4px;color: #82aaff;outline: none;}"
    "\t\t\t\tKQGUI--KQPushButton:disabled{background-color: rgba(181,183,185,0.2);"
    "border:1px solid #b5b7b9;border-radius: 4px;color: #b5b7b9;outline: none;}"
    "\t\t\t\tKQGUI--KQPushButton:pressed{background-color: #ffffff;border: 1px solid #325ace;"
    "border-radius: 4px;color: #325ace;outline: none;}";

} // namespace

/// Tells, after the host could act in between, whether window and load are still the same: it does
/// as it likes while a message box is open, and where it hears of the focus or the picture.
class CIntelligentRulesCtrl::LoadGuard
{
public:
    explicit LoadGuard(CIntelligentRulesCtrl* ctrl) : m_ctrl(ctrl), m_load(ctrl->m_loadNumber) {}
    bool holds() const { return m_ctrl && m_ctrl->m_loadNumber == m_load; }

private:
    QPointer<CIntelligentRulesCtrl> m_ctrl;
    int m_load;
};

CIntelligentRulesCtrl::CIntelligentRulesCtrl(const QString& widgetId, QWidget* parent)
    : QWidget(parent),
      m_form(std::make_unique<Ui_IntelligentRulesCtrl>()),
      m_editing(new EditCommands(this)),
      m_hover(new FigureHover(this)),
      m_widgetId(widgetId)
{
    m_form->setupUi(this);
    setMouseTracking(true);
    connect(m_form->btnSave, &QPushButton::clicked, this, &CIntelligentRulesCtrl::sltSave);
    connect(m_form->btnCancel, &QPushButton::clicked, this, &CIntelligentRulesCtrl::sltCancel);
    connect(this, &CIntelligentRulesCtrl::sgnNotifyVideoSize, this,
            &CIntelligentRulesCtrl::sltNotifyVideoSize, Qt::QueuedConnection);
    m_form->btnSave->setAccessibleDescription(tr("Checks everything and hands it to the device"));
    m_form->btnCancel->setAccessibleDescription(tr("Leaves without saving"));
    m_form->lblHint->hide();
    m_form->lblNotices->hide();
    m_form->sceneView->setFocusPolicy(Qt::NoFocus); // what is in it takes the focus
    new FocusRing(m_form->btnSave, FocusRing::Place::Around);
    new FocusRing(m_form->playerWin, FocusRing::Place::Inside);
    connectEditing();
    m_look = new ReadOnlyLook(*this, *m_form->sceneView);
    connect(m_look, &ReadOnlyLook::sgnSection, this, &CIntelligentRulesCtrl::selectScene);
    m_form->btnSave->setEnabled(false);
    m_form->btnSave->setStyleSheet(QString::fromLatin1(kSaveButtonStyle));
    new WindowSkin(this);
}

CIntelligentRulesCtrl::~CIntelligentRulesCtrl()
{
    emit sgnEnding();
    if (m_playerWin) {
        m_playerWin->registerDrawCallback(nullptr, nullptr);
        m_playerWin->registerVideoSizeCallback(nullptr, nullptr);
    }
    Focus::endIn(*this);
    unload();
}

void CIntelligentRulesCtrl::setInterfaceSetManager(CommonData::CInterfaceSetManager* manager)
{
    if (!manager)
        return;
    m_playerWin = m_form->playerWin;
    m_playerWin->setMouseTracking(true);
    // A press on the picture ends an edit, and keys that take points back reach the window.
    m_playerWin->setFocusPolicy(Qt::StrongFocus);
    m_playerWin->setAccessibleName(tr("Picture"));
    m_playerWin->setInterfaceSetManager(manager);
    m_playerWin->setDrawEnabled(true);
    m_playerWin->setPaneDivision(1);
    m_playerWin->registerDrawCallback(&CIntelligentRulesCtrl::drawOverPicture, this);
    m_playerWin->registerVideoSizeCallback(&CIntelligentRulesCtrl::reportVideoSize, this);
    m_videoRect = m_playerWin->geometry();
    connectSurface();
}

void CIntelligentRulesCtrl::connectSurface()
{
    disconnect(m_playerWin, nullptr, this, nullptr);
    disconnect(m_playerWin, nullptr, m_hover, nullptr);
    connect(m_playerWin, &QRtspVideoWnd::SignalMoveEvent, this,
            &CIntelligentRulesCtrl::OnMouseMove);
    connect(m_playerWin, &QRtspVideoWnd::SignalMoveEvent, m_hover,
            [this](QMouseEvent* event) { m_hover->pointAt(event->pos()); });
    connect(m_playerWin, &QRtspVideoWnd::SignalMousePress, this,
            &CIntelligentRulesCtrl::OnMousePress);
    connect(m_playerWin, &QRtspVideoWnd::sgnWndClick, this, &CIntelligentRulesCtrl::OnWndClick);
    connect(m_playerWin, &QRtspVideoWnd::sgnSWDbClicked, this,
            &CIntelligentRulesCtrl::OnWndDbClick);
    m_playerWin->installEventFilter(this);
    // Surfaces may tell of a new rectangle, but need not.
    if (m_playerWin->metaObject()->indexOfSignal(kPictureRectChanged) >= 0)
        connect(m_playerWin, SIGNAL(sgnPictureRectChanged(int)), this,
                SLOT(sltPictureRectChanged()));
}

bool CIntelligentRulesCtrl::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint)
        followPicture();
    // The surface places its picture while it handles these.
    if (event->type() == QEvent::Resize || event->type() == QEvent::Show)
        QMetaObject::invokeMethod(
            this, [this] { followPicture(); }, Qt::QueuedConnection);
    if (FigureHover::isLeaving(*event, m_videoRect))
        leavePicture();
    return QWidget::eventFilter(watched, event);
}

void CIntelligentRulesCtrl::leavePicture()
{
    m_hover->leave();
    if (m_editing->correcting().leave())
        repaintPicture();
}

void CIntelligentRulesCtrl::sltPictureRectChanged()
{
    followPicture();
    repaintPicture();
}

void CIntelligentRulesCtrl::drawOverPicture(void* deviceContext, void* user)
{
    auto* ctrl = static_cast<CIntelligentRulesCtrl*>(user);
    if (!ctrl || !ctrl->m_drawScene)
        return;
    Gdiplus::Graphics graphics(static_cast<HDC>(deviceContext));
    ctrl->m_drawScene->draw(&graphics);
    ctrl->m_editing->draw(&graphics);
}

void CIntelligentRulesCtrl::reportVideoSize(int width, int height, void* user)
{
    auto* ctrl = static_cast<CIntelligentRulesCtrl*>(user);
    if (!ctrl || width == 0 || height == 0)
        return;
    if (ctrl->m_videoWidth == 0 || ctrl->m_videoHeight == 0)
        emit ctrl->sgnNotifyVideoSize(width, height);
}

void CIntelligentRulesCtrl::sltNotifyVideoSize(int nWidth, int nHeight)
{
    if (m_videoWidth != 0 && m_videoHeight != 0)
        return;
    m_videoWidth = nWidth;
    m_videoHeight = nHeight;
}

void CIntelligentRulesCtrl::setData(const QString& json, int session)
{
    if (!leaveFocus())
        return;
    unload();
    if (json.size() > Limits::kMessageText)
        return showHint(tr("The documents are too long."));
    std::optional<RulesParameters> parameters = RulesParameters::parse(json, session);
    if (!parameters)
        return;
    m_parameters = *std::move(parameters);
    const LoadGuard guard(this);
    showParameters();
    initScenes();
    if (guard.holds())
        showNotices();
    if (guard.holds())
        openPicture();
    if (guard.holds())
        repaintPicture();
}

void CIntelligentRulesCtrl::resetToDefaults()
{
    m_isFocusDue = false;
    m_parameters = {};
    m_form->lblChnCode->setTitle({});
    m_form->lblChnName->setTitle({});
    m_form->wgtChannelInfo->setEnabled(true);
    m_form->btnSave->setEnabled(false);
    for (QWidget* button : answerButtons())
        button->show();
}

void CIntelligentRulesCtrl::showParameters()
{
    m_form->lblChnCode->setTitle(m_parameters.shownChannel);
    m_form->lblChnName->setTitle(m_parameters.channelName);
}

void CIntelligentRulesCtrl::initScenes()
{
    if (readDocuments()) {
        m_form->sceneView->changeHidden([this] {
            for (const auto& sceneData : m_parser->getAllData())
                addPanel(*sceneData);
        });
    }
    const LoadGuard guard(this);
    // Not before: a control that is made disabled stays a nameless one for readers of the screen.
    m_form->wgtChannelInfo->setEnabled(m_parameters.editable);
    if (!guard.holds() || m_scenes.isEmpty())
        return;
    selectScene(m_scenes.first());
    if (!guard.holds())
        return;
    m_editing->transfer().setParser(m_parser.get());
    m_editing->history().start(m_scenes);
    showSteps();
    if (!m_parameters.editable)
        m_look->start(m_scenes);
    focusFirstScene();
}

void CIntelligentRulesCtrl::focusFirstScene()
{
    m_isFocusDue = !isVisible() && !m_scenes.isEmpty();
    if (!isVisible() || m_scenes.isEmpty())
        return;
    // In a read-only window the sections are disabled, and keys come by the picture.
    QWidget* const place =
        m_parameters.editable ? m_scenes.first() : static_cast<QWidget*>(m_playerWin);
    if (place)
        place->setFocus(m_parameters.editable ? Qt::OtherFocusReason : Qt::ShortcutFocusReason);
}

/// What cannot be shown whole is not read at all: saved from here, the rest would be gone.
bool CIntelligentRulesCtrl::readDocuments()
{
    auto parser = std::make_unique<RuleParser>();
    parser->setAlgorithmInfo(m_parameters.algorithmType, m_parameters.algorithmCode);
    QString why;
    const bool isRead = parser->parseTemplate(std::move(m_parameters.templateDocument), why) &&
                        parser->readData(std::move(m_parameters.configuration), why);
    showHint(why);
    if (isRead) {
        parser->findLosses();
        m_parser = std::move(parser);
        m_form->btnSave->setEnabled(true);
    }
    return isRead;
}

void CIntelligentRulesCtrl::addPanel(RuleData& sceneData)
{
    BaseTabelScene* panel = createScene(sceneData.getSceneType(), m_form->sceneView->content());
    if (!panel)
        return;
    panel->setSelectMode(m_parameters.selectionMode);
    panel->setRuleData(&sceneData);
    panel->SetDrawStatus(false);
    m_form->sceneView->addWidgetLayout(panel);
    m_scenes.append(panel);
    connect(panel, &BaseTabelScene::sgnTrySelectedlScene, this,
            &CIntelligentRulesCtrl::sltTrySelectedlScene);
    connect(panel, &BaseTabelScene::sgnEntered, this, &CIntelligentRulesCtrl::sltSectionEntered);
    connect(panel, &BaseTabelScene::sgnRepaintCanvas, this, &CIntelligentRulesCtrl::sceneChanged);
    connect(panel, &BaseTabelScene::sgnLookChanged, this, [this] {
        describePicture();
        repaintPicture();
    });
    connect(panel, &BaseTabelScene::sgnRowEdited, this, &CIntelligentRulesCtrl::sltRowEdited);
    connect(panel, &BaseTabelScene::sgnMenuWanted, this, &CIntelligentRulesCtrl::sltMenuWanted);
}

void CIntelligentRulesCtrl::openPicture()
{
    if (!m_playerWin)
        return;
    m_rtspOpened = !m_parameters.stream.rtspUrl.isEmpty();
    // The host may load anew while it is opened.
    const PreviewLogical::RtspVideoParam stream = m_parameters.stream;
    if (m_rtspOpened)
        m_playerWin->openByRtsp(stream);
    else if (!m_parameters.channelId.isEmpty())
        m_playerWin->openLivePicture(m_parameters.channelId);
}

void CIntelligentRulesCtrl::clearData()
{
    if (leaveFocus())
        unload();
}

bool CIntelligentRulesCtrl::leaveFocus()
{
    const LoadGuard guard(this);
    Focus::takeFrom(*this);
    return guard.holds();
}

void CIntelligentRulesCtrl::unload()
{
    ++m_loadNumber;
    if (m_menu)
        m_menu->close();
    showHint({});
    m_drawScene = nullptr;
    if (m_playerWin && m_rtspOpened)
        m_playerWin->closeRtsp(m_parameters.stream.sessionId, m_parameters.stream.playType);
    else if (m_playerWin)
        m_playerWin->resetToolBar(0);
    m_rtspOpened = false;
    m_editing->setPanel(nullptr, false);
    m_editing->transfer().setParser(nullptr);
    m_editing->history().start({});
    m_look->start({});
    m_hover->setPanel(nullptr);
    m_saveCheck.forget();
    const std::unique_ptr<RuleParser> parser = std::move(m_parser);
    const QList<BaseTabelScene*> scenes = std::exchange(m_scenes, {});
    for (BaseTabelScene* scene : scenes) {
        scene->disconnect(this);
        scene->setRuleData(nullptr);
    }
    m_form->sceneView->clearAll();
    resetToDefaults();
    showNotices();
    showSteps();
    describePicture();
    repaintPicture();
}

bool CIntelligentRulesCtrl::isDrawUnfinished(const QString& channel, const QString& algorithm) const
{
    return m_drawScene &&
           (algorithm == m_parameters.algorithmId || channel == m_parameters.channelId) &&
           m_drawScene->HasDrawUnfinished();
}

void CIntelligentRulesCtrl::sltTrySelectedlScene()
{
    selectScene(qobject_cast<BaseTabelScene*>(sender()));
}

/// The figure in hand stays the one that keys work on.
void CIntelligentRulesCtrl::sltSectionEntered()
{
    if (!m_drawScene || !m_drawScene->isDrawing())
        sltTrySelectedlScene();
}

void CIntelligentRulesCtrl::selectScene(BaseTabelScene* scene)
{
    if (!scene)
        return;
    const LoadGuard guard(this);
    const QWidget* const focused = QApplication::focusWidget();
    const bool holdsFocus = focused && isAncestorOf(focused);
    if (!scene->getSelected())
        m_editing->correcting().end();
    if (!guard.holds())
        return;
    const QList<BaseTabelScene*> panels = m_scenes;
    for (BaseTabelScene* panel : panels) {
        if (panel == scene)
            showSelected(*panel);
        else
            panel->setSelected(false);
        if (!guard.holds())
            return;
    }
    if (!m_parameters.editable) {
        for (QWidget* button : answerButtons())
            button->hide();
    }
    // It was taken from the section that was selected.
    if (holdsFocus && QApplication::focusWidget() == window())
        scene->setFocus();
    if (!guard.holds())
        return;
    describePicture();
    repaintPicture();
}

void CIntelligentRulesCtrl::showSelected(BaseTabelScene& panel)
{
    if (!panel.getSelected()) {
        if (m_drawScene)
            m_drawScene->dropPainting();
        m_drawScene = panel.getDrawScene();
        m_editing->setPanel(&panel, m_parameters.editable && !m_parameters.selectionMode);
        m_hover->setPanel(&panel);
        fitCanvas();
    }
    if (!m_parameters.editable) {
        panel.setUIEditable(false);
        panel.showHint();
    }
    panel.setSelected(true);
}

void CIntelligentRulesCtrl::fitCanvas()
{
    if (!m_drawScene)
        return;
    // What is moved was taken at the size before.
    const LoadGuard guard(this);
    if (m_drawScene->canvasSize() != m_videoRect.size())
        m_editing->correcting().end();
    if (guard.holds() && m_drawScene)
        m_drawScene->setCanvasSize(m_videoRect.width(), m_videoRect.height());
}

void CIntelligentRulesCtrl::followPicture()
{
    if (!m_playerWin)
        return;
    m_videoRect = m_playerWin->paneRect(m_playerWin->selectedPane());
    if (m_drawScene && m_drawScene->canvasSize() != m_videoRect.size())
        fitCanvas();
}

void CIntelligentRulesCtrl::repaintPicture()
{
    if (!m_playerWin)
        return;
    tellSurface();
    m_playerWin->update();
}

void CIntelligentRulesCtrl::tellSurface()
{
    const bool isDrawing = m_drawScene && !m_parameters.selectionMode && m_drawScene->isDrawing();
    if (m_playerWin->property(kDrawing).toBool() != isDrawing)
        m_playerWin->setProperty(kDrawing, isDrawing);
}

void CIntelligentRulesCtrl::sceneChanged()
{
    m_editing->correcting().follow();
    m_editing->history().note(std::exchange(m_editedRow, {}), m_editing->takeSeries());
    showSteps();
    m_hover->leave();
    m_saveCheck.refresh();
    m_editing->followEntry();
    for (BaseTabelScene* panel : qAsConst(m_scenes))
        panel->showHint();
    // Not at once: it is the host's chance to act, in the middle of a click.
    QMetaObject::invokeMethod(this, &CIntelligentRulesCtrl::focusDrawing, Qt::QueuedConnection);
    showHint({});
    showNotices();
    describePicture();
    repaintPicture();
}

void CIntelligentRulesCtrl::describePicture()
{
    BaseTabelScene* const panel = m_drawScene ? m_editing->panel() : nullptr;
    const QString words = panel ? PictureWords::of(*panel, m_editing->crossHair()) : QString();
    if (m_playerWin && m_playerWin->accessibleDescription() != words)
        m_playerWin->setAccessibleDescription(words);
}

bool CIntelligentRulesCtrl::finishEdits()
{
    const LoadGuard guard(this);
    const QList<BaseTabelScene*> scenes = m_scenes;
    for (BaseTabelScene* scene : scenes) {
        scene->finishEdits();
        if (!guard.holds())
            return false;
    }
    return true;
}

void CIntelligentRulesCtrl::OnMousePress(QMouseEvent* event)
{
    m_editing->crossHair().hide();
    m_editing->crossHair().startAt(event->pos());
    pressAt(event->button(), event->pos(), event->modifiers());
}

void CIntelligentRulesCtrl::pressAt(Qt::MouseButton button, const QPoint& at,
                                    Qt::KeyboardModifiers modifiers)
{
    if (m_parameters.selectionMode || !m_drawScene)
        return;
    followPicture();
    const LoadGuard guard(this);
    m_editing->correcting().end();
    if (!guard.holds())
        return;
    const bool wasDrawing = m_drawScene->isDrawing();
    if (button == Qt::LeftButton)
        m_drawScene->addDrawPoint(DrawScene::DrawMouseLeftPress, at);
    else if (button == Qt::RightButton)
        m_drawScene->addDrawPoint(DrawScene::DrawMouseRightPress, at);
    if (!guard.holds())
        return;
    beginDrawStatus();
    if (!wasDrawing)
        m_editing->correcting().press(button, at, modifiers);
    sceneChanged();
}

void CIntelligentRulesCtrl::beginDrawStatus()
{
    const bool drawing = std::any_of(m_scenes.cbegin(), m_scenes.cend(),
                                     [](BaseTabelScene* s) { return s->GetDrawStatus(); });
    if (drawing)
        m_drawScene->SetDrawOver(false);
}

void CIntelligentRulesCtrl::OnMouseMove(QMouseEvent* event)
{
    moveAt(event->pos(), event->buttons());
}

void CIntelligentRulesCtrl::moveAt(const QPoint& at, Qt::MouseButtons buttons)
{
    if (m_parameters.selectionMode || !m_drawScene)
        return;
    followPicture();
    const LoadGuard guard(this);
    const auto before = m_drawScene->look();
    m_drawScene->addDrawPoint(DrawScene::DrawMouseMove, at);
    const bool isDrawn = m_drawScene->look() != before;
    if ((m_editing->correcting().move(at, buttons) || isDrawn) && guard.holds())
        repaintPicture();
}

void CIntelligentRulesCtrl::OnWndClick(int nWndNum, int, int)
{
    const LoadGuard guard(this);
    m_editing->correcting().click();
    if (guard.holds() && m_playerWin && nWndNum == m_playerWin->selectedPane())
        m_videoRect = m_playerWin->paneRect(nWndNum);
}

void CIntelligentRulesCtrl::OnWndDbClick(int nWndNum, int, int)
{
    const LoadGuard guard(this);
    m_editing->correcting().end();
    if (!guard.holds())
        return;
    if (m_playerWin && nWndNum == m_playerWin->selectedPane())
        m_videoRect = m_playerWin->paneRect(nWndNum);
    fitCanvas();
    repaintPicture();
}

void CIntelligentRulesCtrl::sltSave()
{
    const LoadGuard guard(this);
    if (!sltFinish())
        return;
    showHint({});
    const bool allowed = checkSave() && (m_parameters.selectionMode || confirmChange());
    if (!guard.holds() || !allowed)
        return;
    if (postResult()) {
        m_editing->history().setSaved();
        m_saveCheck.forget();
        for (BaseTabelScene* scene : qAsConst(m_scenes)) {
            scene->SetDrawStatus(false);
            scene->markFault(nullptr);
            scene->ruleData()->saveNotices().forgetLeftOut();
        }
        showNotices();
        showSteps();
    }
    if (m_drawScene)
        m_drawScene->SetDrawOver(true);
}

bool CIntelligentRulesCtrl::sltFinish()
{
    const LoadGuard guard(this);
    m_editing->correcting().end();
    return guard.holds() && m_parser && finishEdits();
}

void CIntelligentRulesCtrl::sltCheck()
{
    if (sltFinish())
        checkSave();
}

bool CIntelligentRulesCtrl::checkSave()
{
    const auto refusal = m_parameters.selectionMode ? SaveCheck::selectionRefusal(m_scenes)
                                                    : SaveCheck::refusal(m_scenes);
    if (!refusal)
        return true;
    const LoadGuard guard(this);
    showError(refusal->fault.message);
    if (guard.holds())
        showRefusal(*refusal);
    return false;
}

void CIntelligentRulesCtrl::showRefusal(const SaveCheck::Refusal& refusal)
{
    BaseTabelScene& panel = *refusal.panel;
    const LoadGuard guard(this);
    if (panel.getFold())
        panel.setFold(false);
    if (guard.holds())
        selectScene(&panel);
    if (guard.holds())
        panel.showFault(refusal.fault);
    if (!guard.holds())
        return;
    m_saveCheck.mark(refusal);
    Scrolling::showWhole(panel);
    QWidget* const place = panel.placeOf(refusal.fault);
    if (place)
        Scrolling::showWhole(*place);
    if (place)
        place->setFocus(Qt::TabFocusReason);
    else if (m_drawScene && m_drawScene->isDrawing() && m_playerWin)
        focusPicture(false);
    else
        panel.setFocus();
}

bool CIntelligentRulesCtrl::confirmChange()
{
    // Without a configuration nothing is running that a save could affect.
    return !m_parameters.hasConfig ||
           ask(tr("The current operation may affect the already running task. Please confirm "
                  "whether to modify it?"));
}

bool CIntelligentRulesCtrl::postResult()
{
    kql::Json::Value config;
    QString why;
    bool isWritten = m_parser->writeData(config, why);
    if (isWritten && !postSaved(m_widgetId, m_parameters, std::move(config))) {
        why = RuleParser::tooLongText();
        isWritten = false;
    }
    if (!isWritten)
        showHint(tr("Nothing was saved. %1").arg(why));
    return isWritten;
}

void CIntelligentRulesCtrl::sltCancel()
{
    const LoadGuard guard(this);
    m_editing->correcting().end();
    if (!guard.holds())
        return;
    if (m_drawScene)
        m_drawScene->SetDrawOver(false);
    const bool leave = ask(tr("Do you want to exit the current configuration?"));
    if (guard.holds() && leave)
        postExited(m_widgetId, m_parameters);
}

bool CIntelligentRulesCtrl::ask(const QString& question)
{
    return KQGUI::KQMessageBox::ShowInformation(this, kQuestionType, tr("Prompt"), question,
                                                QMessageBox::Yes | QMessageBox::No) ==
           QMessageBox::Yes;
}

void CIntelligentRulesCtrl::showError(const QString& message)
{
    KQGUI::KQMessageBox::ShowError(this, tr("Error"), message);
}

void CIntelligentRulesCtrl::showHint(const QString& text)
{
    const QString shown = ShortenedText::line(text, Limits::kLine);
    m_form->lblHint->setText(PlainText::breakable(shown));
    m_form->lblHint->setToolTip(PlainText::toolTip(shown));
    m_form->lblHint->setVisible(!text.isEmpty());
    if (text.isEmpty())
        return;
    QAccessibleEvent told(m_form->lblHint, QAccessible::Alert);
    QAccessible::updateAccessibility(&told);
}

/// In a read-only window nothing is saved of which anything could be lost.
QStringList CIntelligentRulesCtrl::notices() const
{
    if (!m_parser)
        return {};
    return m_parameters.editable ? m_parser->notices()
                                 : QStringList(tr("Read-only: nothing can be changed here."));
}

void CIntelligentRulesCtrl::showNotices()
{
    const QStringList notices = this->notices();
    m_form->lblNotices->setTitle(notices.join(QLatin1Char(' ')));
    m_form->lblNotices->setToolTip(PlainText::toolTip(notices.join(QLatin1Char('\n'))));
    if (m_form->lblNotices->isHidden() == notices.isEmpty())
        return;
    m_form->lblNotices->setVisible(!notices.isEmpty());
    // The notices have the room that is empty otherwise.
    const int emptyWidth = notices.isEmpty() ? kEmptyWidth : 0;
    m_form->horizontalSpacer->changeSize(emptyWidth, m_form->horizontalSpacer->sizeHint().height(),
                                         QSizePolicy::Expanding);
    m_form->horizontalLayout_2->invalidate();
}

void CIntelligentRulesCtrl::connectEditing()
{
    connect(&m_editing->history(), &EditHistory::sgnRestored, this,
            &CIntelligentRulesCtrl::sltRestored);
    connect(&m_editing->correcting(), &Correcting::sgnEnded, this,
            &CIntelligentRulesCtrl::sceneChanged);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget* old, const QWidget* now) { focusMoved(old, now); });
    connect(m_editing, &EditCommands::sgnMoved, this, [this](const QPoint& at) {
        moveAt(at, Qt::NoButton);
        describePicture();
    });
    connect(m_editing, &EditCommands::sgnPressed, this,
            [this](Qt::MouseButton button, const QPoint& at) { pressAt(button, at, {}); });
    connect(m_form->btnUndo, &QPushButton::clicked, this, [this] { useKey(EditKey::Undo); });
    connect(m_form->btnRedo, &QPushButton::clicked, this, [this] { useKey(EditKey::Redo); });
    showSteps();
}

void CIntelligentRulesCtrl::focusMoved(const QWidget* old, const QWidget* now)
{
    // What is pressed must not move away under the pointer.
    const bool isPressed = QGuiApplication::mouseButtons() != Qt::NoButton;
    if (now && !isPressed && m_form->sceneView->isAncestorOf(now))
        Scrolling::showWhole(*now);
    const LoadGuard guard(this);
    if (now != m_playerWin)
        m_editing->correcting().end();
    // Qt gives it back with the window, while another section may have been selected since.
    if (now && !old && !isPressed && guard.holds())
        keepOffCovered(*now);
}

void CIntelligentRulesCtrl::keepOffCovered(const QWidget& focused)
{
    const auto holds = [&focused](const BaseTabelScene* scene) {
        return scene->isAncestorOf(&focused);
    };
    const auto held = std::find_if(m_scenes.cbegin(), m_scenes.cend(), holds);
    const auto selected =
        std::find_if(m_scenes.cbegin(), m_scenes.cend(),
                     [](const BaseTabelScene* scene) { return scene->getSelected(); });
    if (held != m_scenes.cend() && selected != m_scenes.cend() && held != selected)
        (*selected)->setFocus(Qt::ActiveWindowFocusReason);
}

QList<QWidget*> CIntelligentRulesCtrl::answerButtons() const
{
    return {m_form->btnUndo, m_form->btnRedo, m_form->btnSave, m_form->btnCancel};
}

bool CIntelligentRulesCtrl::isEditable() const
{
    return m_parser && m_parameters.editable;
}

bool CIntelligentRulesCtrl::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationFontChange) {
        for (BaseTabelScene* scene : qAsConst(m_scenes))
            scene->fitToFont();
    }
    if (event->type() != QEvent::ShortcutOverride)
        return QWidget::event(event);
    auto& key = static_cast<QKeyEvent&>(*event);
    const LoadGuard guard(this);
    m_editing->correcting().endByKey(key.key());
    if (!guard.holds())
        return true;
    if (isEditable() && m_editing->claims(editKeyOf(key)))
        key.accept();
    else
        key.ignore();
    return true;
}

void CIntelligentRulesCtrl::keyPressEvent(QKeyEvent* event)
{
    const LoadGuard guard(this);
    m_editing->correcting().endByKey(event->key());
    // A key that is held does not take and let go, or leave, again and again.
    const EditKey pressed = editKeyOf(*event);
    const bool isHeld = event->isAutoRepeat() && !EditCommands::repeats(pressed);
    const EditKey key = isHeld ? EditKey::None : pressed;
    const bool isClaimed = guard.holds() && isEditable() && m_editing->claims(key);
    event->setAccepted(isClaimed || isHeld);
    if (!guard.holds() || !isEditable())
        return;
    if (!m_editing->isUseful(key))
        return tellUseless(key);
    const bool hasFocus = m_playerWin && window()->focusWidget() == m_playerWin;
    if (!isClaimed && !(hasFocus && EditCommands::isForPicture(key)))
        return;
    event->setAccepted(key != EditKey::Idle);
    if (!finishEdits())
        return;
    m_usedKey = key;
    emit sgnKeyUsed();
    if (guard.holds())
        useKey(key);
}

void CIntelligentRulesCtrl::tellUseless(EditKey key)
{
    const QString why = m_editing->whyUseless(key);
    if (!why.isEmpty())
        showHint(why);
}

void CIntelligentRulesCtrl::useKey(EditKey key)
{
    const LoadGuard guard(this);
    if (key == EditKey::Help)
        return showKeys();
    if (!finishEdits())
        return;
    // Rows and buttons that have the focus may be about to go.
    if (m_playerWin && key != EditKey::Copy)
        focusPicture(m_form->btnUndo->underMouse() || m_form->btnRedo->underMouse());
    if (!guard.holds() || !isEditable())
        return;
    const bool wasDrawing = m_drawScene && m_drawScene->isDrawing();
    const QString why = m_editing->use(key);
    if (!guard.holds())
        return;
    if (m_drawScene && wasDrawing && EditCommands::draws(key))
        m_drawScene->SetDrawOver(false);
    sceneChanged();
    showHint(why);
}

/// Keys that take points back are for the picture then, not for the button that began the drawing.
void CIntelligentRulesCtrl::focusDrawing()
{
    const QWidget* focused = QApplication::focusWidget();
    const bool isBeginning =
        qobject_cast<const QPushButton*>(focused) || qobject_cast<const BaseTabelScene*>(focused);
    const bool isDrawing = m_drawScene && m_drawScene->isDrawing();
    if (isDrawing && m_playerWin && isVisible() && isBeginning && isAncestorOf(focused))
        focusPicture(focused->underMouse());
}

void CIntelligentRulesCtrl::focusPicture(bool byMouse)
{
    m_playerWin->setFocus(byMouse ? Qt::MouseFocusReason : Qt::ShortcutFocusReason);
}

void CIntelligentRulesCtrl::showKeys()
{
    const QStringList keys{
        tr("Backspace: take the last point back"),
        tr("Enter: finish the figure, press the right button at the cross-hair, or let go"),
        tr("Escape: take all points back, then leave the drawing"),
        tr("Arrows: move what was taken last, else a cross-hair; with Shift ten times as far"),
        tr("Space: press at the cross-hair, take or let go of a handle"),
        tr("Delete, or Shift and a press: remove a corner"),
        tr("Ctrl and a press: take the whole figure"),
        tr("Ctrl+Z: undo"),
        tr("Ctrl+Y, Ctrl+Shift+Z: redo"),
        tr("Ctrl+C, Ctrl+V: copy the entry, paste a copied one"),
        tr("Ctrl+D: duplicate the entry"),
        tr("Shift+F10, Menu: what can be done with the entry whose button has the focus"),
        tr("Up, Down: one more or less in a field for whole numbers"),
        tr("Space, Enter on a title: fold and unfold the section"),
    };
    KQGUI::KQMessageBox::ShowNotice(this, tr("Keys"), keys.join(QLatin1Char('\n')));
}

void CIntelligentRulesCtrl::sltRowEdited(const QString& key)
{
    m_editedRow = key;
}

void CIntelligentRulesCtrl::sltRestored(BaseTabelScene* panel)
{
    if (panel->getFold())
        panel->setFold(false);
    selectScene(panel);
}

void CIntelligentRulesCtrl::sltMenuWanted(int dataId, const QPoint& place)
{
    const QPointer<BaseTabelScene> panel = qobject_cast<BaseTabelScene*>(sender());
    if (!panel || !isEditable() || !panel->takesEntries())
        return;
    if (m_menu)
        m_menu->close();
    m_menu = new EntryMenu(*panel, dataId, m_editing->transfer(), this);
    // Not in the middle of the menu's own work: what was chosen may end the window.
    connect(
        m_menu, &EntryMenu::sgnChosen, this,
        [this, panel, dataId, load = m_loadNumber](EntryAction action) {
            if (load == m_loadNumber)
                useMenu(panel, dataId, action);
        },
        Qt::QueuedConnection);
    m_menu->popup(place);
}

void CIntelligentRulesCtrl::useMenu(BaseTabelScene* panel, int dataId, EntryAction action)
{
    const LoadGuard guard(this);
    if (!panel || !isEditable() || !finishEdits())
        return;
    m_editing->correcting().end();
    selectScene(panel);
    if (!guard.holds() || !panel->ruleData()->getDataInfo(dataId))
        return;
    QString why;
    switch (action) {
    case EntryAction::Copy:
        return showHint(m_editing->copy(dataId));
    case EntryAction::Paste:
        return useKey(EditKey::Paste);
    case EntryAction::Duplicate:
        why = m_editing->duplicate(dataId);
        break;
    default:
        return editEntry(*panel, dataId, action);
    }
    if (!guard.holds())
        return;
    sceneChanged();
    showHint(why);
}

void CIntelligentRulesCtrl::editEntry(BaseTabelScene& panel, int dataId, EntryAction action)
{
    const LoadGuard guard(this);
    if (!panel.makeCurrent(dataId) || !guard.holds())
        return;
    if (action == EntryAction::Redraw)
        return panel.sltRedrawItem();
    if (action == EntryAction::Delete)
        return panel.sltDeleteDrawItem();
    sceneChanged();
    panel.startRenaming();
}

void CIntelligentRulesCtrl::showSteps()
{
    const QUndoStack& steps = m_editing->history().stack();
    m_form->btnUndo->setEnabled(steps.canUndo());
    m_form->btnRedo->setEnabled(steps.canRedo());
    const QString undone = tr("Undo: %1 (Ctrl+Z)").arg(steps.undoText());
    const QString redone = tr("Redo: %1 (Ctrl+Y)").arg(steps.redoText());
    m_form->btnUndo->setToolTip(steps.canUndo() ? PlainText::toolTip(undone) : QString());
    m_form->btnRedo->setToolTip(steps.canRedo() ? PlainText::toolTip(redone) : QString());
    const bool before = std::exchange(m_wasEdited, isEdited());
    // Not at once: it is the host's chance to act, in the middle of a click.
    if (before != m_wasEdited)
        QMetaObject::invokeMethod(this, &CIntelligentRulesCtrl::sgnEditedChanged,
                                  Qt::QueuedConnection);
}

bool CIntelligentRulesCtrl::isEdited() const
{
    return !m_editing->history().stack().isClean();
}

void CIntelligentRulesCtrl::paintEvent(QPaintEvent*)
{
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

void CIntelligentRulesCtrl::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    followPicture();
}

void CIntelligentRulesCtrl::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_isFocusDue)
        focusFirstScene();
}

void CIntelligentRulesCtrl::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    const LoadGuard guard(this);
    m_editing->correcting().end();
    if (!guard.holds())
        return;
    if (m_menu)
        m_menu->close();
    // Qt leaves the focus in what it hides when it finds no other place for it. It is still hiding
    // now, and who hears of the focus may delete the window.
    const auto leave = [this] {
        if (!isVisible() && window()->isVisible())
            Focus::takeFrom(*this);
    };
    QMetaObject::invokeMethod(this, leave, Qt::QueuedConnection);
}

} // namespace IntelligentRulesUI
