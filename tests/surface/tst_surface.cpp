#include "draw/drawscene.h"
#include "host/video/qrtspvideownd.h"
#include "scene/basetabelscene.h"
#include "tests/support/rulestest.h"
#include "tests/support/ruleswindow.h"
#include "tests/support/sampledocuments.h"

using kql::Json::Value;

/// The window on a surface of another maker.
class TstSurface : public RulesTest
{
    Q_OBJECT

    RulesWindow m_desk;
    QRtspVideoWnd& m_surface = *m_desk.find<QRtspVideoWnd>("playerWin");

    void prepareTest() override
    {
        m_desk.window->setData(
            SampleDocuments::block(R"("channelId": "C1")",
                                   SampleDocuments::config(SampleDocuments::rule("Gate"))),
            1);
    }
    void press(const QPoint& at, Qt::MouseButton button)
    {
        QMouseEvent event(QEvent::MouseButtonPress, at, button, button, {});
        emit m_surface.SignalMousePress(&event);
    }

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
};

QTEST_MAIN(TstSurface)
#include "tst_surface.moc"
