#include "host/sample/samplecamerasource.h"
#include "host/video/channelsources.h"
#include "host/video/picturesource.h"
#include "host/video/qrtspvideownd.h"
#include "tests/support/rulestest.h"

using namespace UICommonMdl;

/// The tools over a pane that shows the sample camera.
class TstPictureStrip : public RulesTest
{
    Q_OBJECT

private slots:
    void showsOnHoverAndGivesWay()
    {
        QSignalSpy presses(m_surface.get(), &QRtspVideoWnd::sgnWndClick);
        QVERIFY(!strip()->isVisible());
        hover();
        QTRY_VERIFY_WITH_TIMEOUT(strip()->isVisible(), kTryFor);
        QVERIFY(m_surface->rect().contains(strip()->geometry()));
        const QPoint onButton = child<QToolButton>("freeze")->geometry().center();
        QTest::mousePress(child<QToolButton>("freeze"), Qt::RightButton);
        QCOMPARE(presses.count(), 1); // it draws, where the pointer is
        const QPoint at(presses[0][1].toInt(), presses[0][2].toInt());
        QVERIFY((at - strip()->geometry().topLeft() - onButton).manhattanLength() < 4);
        QVERIFY(!strip()->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(strip()->isVisible(), kTryFor);
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(m_surface.get(), &leave);
        QVERIFY(!strip()->isVisible());
    }

    void letsPressesThroughWhileSomethingIsDrawn()
    {
        QSignalSpy presses(m_surface.get(), &QRtspVideoWnd::sgnWndClick);
        for (const bool isDrawing : {true, false}) {
            m_surface->setProperty("drawing", isDrawing);
            hover();
            QTRY_VERIFY_WITH_TIMEOUT(strip()->isVisible(), kTryFor);
            const auto* const freeze = child<QToolButton>("freeze");
            const QPoint at = freeze->mapTo(m_surface.get(), freeze->rect().center());
            QTest::mouseClick(m_surface->windowHandle(), Qt::LeftButton, {}, at);
            QCOMPARE(presses.count(), 1);
            QCOMPARE(m_surface->isFrozen(), !isDrawing);
        }
    }

    void freezes()
    {
        child<QToolButton>("freeze")->click();
        QVERIFY(m_surface->isFrozen());
        QVERIFY(!m_surface->statusText().isEmpty());
        const QImage held = shown();
        const QImage snapshot = m_surface->snapshot();
        QCOMPARE(snapshot.size(), QSize(1280, 720));
        SampleCameraSource camera;
        QSignalSpy ready(&camera, &PictureSource::sgnPictureReady);
        camera.start();
        QTRY_VERIFY_WITH_TIMEOUT(ready.count() > 5, kTryFor); // the pane's camera went on as well
        QCOMPARE(shown(), held);
        QCOMPARE(m_surface->snapshot(), snapshot);
        child<QToolButton>("freeze")->click();
        QVERIFY(!m_surface->isFrozen());
        QCOMPARE(m_surface->statusText(), QString());
        QTRY_VERIFY_WITH_TIMEOUT(shown() != held, kTryFor);
        m_surface->setFrozen(true);
        QVERIFY(child<QToolButton>("freeze")->isChecked());
        QVERIFY(m_surface->openLivePicture(QString("channel")));
        QVERIFY_BOTH(!m_surface->isFrozen(), !child<QToolButton>("freeze")->isChecked());
    }

    void tellsStatistics()
    {
        auto* const text = child<QLabel>("statisticsText");
        QVERIFY(!text->isVisible());
        child<QToolButton>("statistics")->click();
        QVERIFY(text->isVisible());
        QVERIFY(text->text().contains("Size: 1280 x 720"));
        QTRY_VERIFY_WITH_TIMEOUT(!text->text().contains("second: 0.0"), kTryFor);
        m_surface->resetToolBar(0);
        QVERIFY(!text->isVisible());
    }

    void savesSnapshots()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QString("picture.png"));
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        QTimer::singleShot(0, this, [path]() {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog);
            dialog->selectFile(path);
            QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
        });
        child<QToolButton>("snapshot")->click();
        QCOMPARE(QImage(path).size(), QSize(1280, 720));
    }

protected:
    void prepareTest() override
    {
        m_surface = std::make_unique<QRtspVideoWnd>();
        m_surface->resize(640, 360);
        m_surface->show();
        QVERIFY(m_surface->openLivePicture(QString("channel")));
        QVERIFY(!m_surface->paneRect(0).isEmpty());
    }

private:
    QWidget* strip() const { return child<QWidget>("pictureStrip"); }
    template<typename T>
    T* child(const char* name) const
    {
        return m_surface->findChild<T*>(QLatin1String(name));
    }
    QImage shown() const { return m_surface->grab().toImage(); }
    void hover()
    {
        QApplication::sendEvent(m_surface.get(), std::make_unique<QEvent>(QEvent::Enter).get());
    }

    std::unique_ptr<QRtspVideoWnd> m_surface;
};

QTEST_MAIN(TstPictureStrip)
#include "tst_picturestrip.moc"
