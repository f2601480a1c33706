#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "host/video/qrtspvideownd.h"
#include "scene/basetabelscene.h"
#include "tests/support/examplefiles.h"
#include "tests/support/rulestest.h"
#include "tests/support/ruleswindow.h"
#include "tests/support/sampledocuments.h"

/// The window on a surface of another maker.
class TstSurface : public RulesTest
{
    Q_OBJECT

    static void press(QRtspVideoWnd& surface, const QPoint& at, Qt::MouseButton button)
    {
        QMouseEvent event(QEvent::MouseButtonPress, at, button, button, {});
        emit surface.SignalMousePress(&event);
    }

    /// Draws the first figure of @p canvas once more, as it was.
    static void drawAgain(QRtspVideoWnd& surface, DrawScene& canvas)
    {
        DrawItem& item = *canvas.getFirstDrawItem();
        const QPolygon before(item.getPoints());
        canvas.setSelected(item.itemId(), item.dataId());
        canvas.redrawItem(item.itemId());
        QVERIFY(!item.isFinished());
        for (const QPoint& point : before) {
            const QPoint at(point.x() * surface.picture.width() / 8192,
                            point.y() * surface.picture.height() / 8192);
            press(surface, at, Qt::LeftButton);
        }
        press(surface, {}, Qt::RightButton);
        QVERIFY(item.isFinished());
        const QRect was = before.boundingRect();
        const QRect is = QPolygon(item.getPoints()).boundingRect();
        const int pixel = 8192 / surface.picture.height() + 1;
        QVERIFY((was.topLeft() - is.topLeft()).manhattanLength() <= 2 * pixel);
        QVERIFY((was.bottomRight() - is.bottomRight()).manhattanLength() <= 2 * pixel);
    }

private slots:
    void drawsAndSaves_data()
    {
        QTest::addColumn<QString>("sections");
        QTest::newRow("fight-calibration") << "[FightCalibrateScene] GlobalScene";
        QTest::newRow("lane-calibration") << "[CalibrateAreaScene] [LanesScene]";
        QTest::newRow("perimeter") << "[RuleScene] GlobalScene";
        QTest::newRow("traffic") << "[LanesScene] [DetectionScene]";
    }

    void drawsAndSaves()
    {
        const QString folder = ExampleFiles::folder(QTest::currentDataTag());
        RulesWindow desk;
        desk.window->setData(
            SampleDocuments::block(R"("channelId": "C1")",
                                   ExampleFiles::contentOf(folder + "config.json"),
                                   ExampleFiles::contentOf(folder + "template.json")),
            1);
        auto& surface = *desk.find<QRtspVideoWnd>("playerWin");
        surface.picture = QRect(7, 5, 640, 360);
        QStringList drawn;
        const QList<BaseTabelScene*> panels = desk.window->findChildren<BaseTabelScene*>();
        for (BaseTabelScene* panel : panels) {
            desk.window->selectScene(panel);
            const QString name = panel->metaObject()->className();
            const bool hasFigure = panel->getDrawScene()->getFirstDrawItem();
            if (hasFigure)
                drawAgain(surface, *panel->getDrawScene());
            drawn.append(hasFigure ? '[' + name + ']' : name);
        }
        QTEST(drawn.join(' '), "sections");
        desk.save();
        const QList<Mailbox::Message> messages = desk.mailbox.take();
        QCOMPARE(messages.size(), 1);
        QCOMPARE(Mailbox::json(messages[0].p2.toString())["result"].asInt(), 0);
    }

    /// It tells nothing of its picture, so that is looked for where something may have changed.
    void canvasFollowsThePicture()
    {
        RulesWindow desk;
        desk.window->setData(
            SampleDocuments::block(R"("channelId": "C1")",
                                   SampleDocuments::config(SampleDocuments::rule("Gate"))),
            1);
        auto& surface = *desk.find<QRtspVideoWnd>("playerWin");
        const DrawScene& canvas = *desk.find<BaseTabelScene>("rules")->getDrawScene();
        surface.picture = QRect(0, 0, 320, 180);
        surface.grab();
        QCOMPARE(canvas.canvasSize(), QSize(320, 180));
        surface.setUpdatesEnabled(false);
        surface.picture = QRect(0, 0, 300, 200);
        surface.resize(400, 300);
        QCoreApplication::processEvents();
        QCOMPARE(canvas.canvasSize(), QSize(300, 200));
    }
};

QTEST_MAIN(TstSurface)
#include "tst_surface.moc"
