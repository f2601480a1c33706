#include "draw/drawscene.h"
#include "host/video/qrtspvideownd.h"
#include "scene/basetabelscene.h"
#include "tests/support/rulestest.h"
#include "tests/support/ruleswindow.h"
#include "tests/support/sampledocuments.h"

using kql::Json::Value;

namespace
{

/// A surface that keeps to itself that a button was let go.
class Silence : public QObject
{
public:
    Silence() { qApp->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        return event->type() == QEvent::MouseButtonRelease;
    }
};

} // namespace

/// The window on a surface of another maker.
class TstSurface : public RulesTest
{
    Q_OBJECT

    RulesWindow m_desk;
    QRtspVideoWnd& m_surface = *m_desk.find<QRtspVideoWnd>("playerWin");

    void prepareTest() override { load(); }
    void press(const QPoint& at, Qt::MouseButton button)
    {
        QMouseEvent event(QEvent::MouseButtonPress, at, button, button, {});
        emit m_surface.SignalMousePress(&event);
    }
    void move(const QPoint& at, Qt::MouseButtons held = Qt::LeftButton)
    {
        QMouseEvent event(QEvent::MouseMove, at, Qt::NoButton, held, {});
        emit m_surface.SignalMoveEvent(&event);
    }
    void load(const QByteArray& members = R"("channelId": "C1")")
    {
        m_desk.window->setData(
            SampleDocuments::block(members, SampleDocuments::config(SampleDocuments::rule("Gate"))),
            1);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_surface.picture = QRect(0, 0, 512, 512);
        m_surface.grab();
    }
    QPoint corner() const
    {
        const BaseTabelScene* panel = m_desk.find<BaseTabelScene>("rules");
        return panel ? panel->getDrawScene()->getFirstDrawItem()->getPoints().last() : QPoint();
    }
    QString saved()
    {
        m_desk.save();
        const Value message = Mailbox::json(m_desk.mailbox.take().last().p2.toString());
        return message["channelAbilityPO"]["Rules"][0]["Area"][2].toCompactText();
    }

    /// What ends a move of the mouse, by its name.
    const QMap<QString, std::function<void()>> m_ends = {
        {"a move without the button",
         [this] {
             move({300, 300}, Qt::NoButton);
         }},
        {"a move with another button",
         [this] {
             move({300, 300}, Qt::RightButton);
         }},
        {"a press elsewhere",
         [this] {
             press({100, 400}, Qt::LeftButton);
         }},
        {"a press of another button",
         [this] {
             press({260, 250}, Qt::RightButton);
         }},
        {"a double click", [this] { emit m_surface.sgnSWDbClicked(0, 260, 250); }},
        {"a click with no button held", [this] { emit m_surface.sgnWndClick(0, 260, 250); }},
        {"a key", [this] { QTest::keyClick(m_desk.window, Qt::Key_F5); }},
        {"Escape", [this] { QTest::keyClick(&m_surface, Qt::Key_Escape); }},
        {"another focus", [this] { m_desk.find("btnSave")->setFocus(); }},
        {"Save", [this] { m_desk.find<QPushButton>("btnSave")->click(); }},
        {"Cancel", [this] { m_desk.find<QPushButton>("btnCancel")->click(); }},
        {"undo", [this] { QTest::keyClick(&m_surface, Qt::Key_Z, Qt::ControlModifier); }},
        {"a load", [this] { load(); }},
        {"message 0",
         [this] {
             m_desk.window->clearData();
             move({300, 300});
             load();
         }},
        {"hiding", [this] { m_desk.window->hide(); }},
    };

private slots:
    void drawsAndSaves()
    {
        m_surface.picture = QRect(7, 5, 640, 360);
        m_surface.grab();
        m_desk.click("redraw");
        for (const QPoint& at : {QPoint(64, 36), QPoint(320, 36), QPoint(320, 180)})
            press(at, Qt::LeftButton);
        press({}, Qt::RightButton);
        m_desk.save();
        const Value saved = Mailbox::json(m_desk.mailbox.take().value(0).p2.toString());
        QCOMPARE(saved["channelAbilityPO"]["Rules"][0]["Area"].toCompactText(),
                 QString("[[819,819],[4096,819],[4096,4096]]"));
    }

    /// It tells nothing of its picture, so that is looked for where something may have changed.
    void canvasFollowsThePicture()
    {
        const DrawScene& canvas = *m_desk.find<BaseTabelScene>("rules")->getDrawScene();
        m_surface.picture = QRect(0, 0, 320, 180);
        m_surface.grab();
        QCOMPARE(canvas.canvasSize(), QSize(320, 180));
        m_surface.setUpdatesEnabled(false);
        m_surface.picture = QRect(0, 0, 300, 200);
        m_surface.resize(400, 300);
        QCoreApplication::processEvents();
        QCOMPARE(canvas.canvasSize(), QSize(300, 200));
    }

    void endsMoves_data()
    {
        QTest::addColumn<QString>("end");
        for (auto it = m_ends.begin(); it != m_ends.end(); ++it)
            QTest::newRow(qPrintable(it.key())) << it.key();
    }

    /// By the surface's signals alone, of a button that the application does not know of.
    void endsMoves()
    {
        QFETCH(const QString, end);
        m_desk.window->show();
        QApplication::setActiveWindow(m_desk.window);
        m_surface.setFocus();
        press({250, 250}, Qt::LeftButton);
        emit m_surface.sgnWndClick(0, 250, 250);
        move({255, 250});
        QTest::keyClick(&m_surface, Qt::Key_Shift);
        move({260, 250});
        QCOMPARE(corner(), QPoint(4000, 4000));
        m_ends[end]();
        const bool isBack = end == "undo" || end == "a load" || end == "message 0";
        const QPoint left(isBack ? 4000 : 4160, 4000);
        QCOMPARE(corner(), left);
        move({300, 300});
        QCOMPARE(corner(), left);
        QCOMPARE(saved(), QString("[%1,4000]").arg(left.x()));
    }

    /// Of a button that it knows of, a click while it is held is none of its end.
    void endsWhenTheButtonIsLetGo()
    {
        QVERIFY(QTest::qWaitForWindowExposed(m_desk.window));
        QWindow* window = m_desk.window->windowHandle();
        const QPoint origin = m_surface.mapTo(m_desk.window, QPoint());
        QTest::mousePress(window, Qt::LeftButton, {}, origin + QPoint(250, 250));
        QTest::mouseMove(window, origin + QPoint(255, 250));
        emit m_surface.sgnWndClick(0, 255, 250);
        QTest::mouseMove(window, origin + QPoint(260, 250));
        QCOMPARE(corner(), QPoint(4000, 4000));
        const Silence silence;
        QTest::mouseRelease(window, Qt::LeftButton, {}, origin + QPoint(260, 250));
        QTRY_COMPARE_WITH_TIMEOUT(corner(), QPoint(4160, 4000), kTryFor);
    }

    void takesNothingInAWindowThatIsReadOnly()
    {
        load(R"("channelId": "C1", "editable": false)");
        press({250, 250}, Qt::LeftButton);
        move({260, 250});
        move({260, 250}, Qt::NoButton);
        QTest::keyClick(&m_surface, Qt::Key_Delete);
        QCOMPARE(corner(), QPoint(4000, 4000));
    }
};

QTEST_MAIN(TstSurface)
#include "tst_surface.moc"
