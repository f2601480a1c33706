#include "bench/benchrow.h"
#include "host/api/cinterfacesetmanager.h"
#include "host/api/kqsingleton.h"
#include "host/api/skin.h"
#include "host/sample/samplecamerasource.h"
#include "host/video/channelsources.h"
#include "host/video/qrtspvideownd.h"
#include "plugin/cintelligentrulesctrl.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QDir>
#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QTemporaryDir>
#include <functional>
#include <memory>
#include <vector>

using IntelligentRulesUI::CIntelligentRulesCtrl;

namespace
{

constexpr QSize kWindow(1180, 800);
const char* const kTypical = RULES_SOURCE_DIR "/examples/perimeter/";

/// What a camera hands over as its snapshot.
QString picturePath()
{
    static const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("camera.jpg"));
    if (!QFile::exists(path))
        UICommonMdl::SampleCameraSource::paintFrame(0).save(path, "JPG");
    return path;
}

QString contentOf(const char* name)
{
    QFile file(QString::fromLatin1(kTypical) + QLatin1String(name));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString parameterBlock()
{
    return QStringLiteral(R"({"algorithmId": "sample", "channalId": "1", "channelName": "Gate", )"
                          R"("channelAbilityPO": %1, "videoConfigRuleProperty": %2})")
        .arg(contentOf("config.json"), contentOf("template.json"));
}

/// The client's side of a rules window.
struct Window {
    Window()
    {
        window.setInterfaceSetManager(&manager);
        window.resize(kWindow);
        window.show();
        QCoreApplication::processEvents();
    }

    CommonData::CInterfaceSetManager manager;
    CIntelligentRulesCtrl window{QStringLiteral("W1")};
};

/// Tells when its widget has painted, once there is something to be painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(
        QWidget* widget, std::function<bool()> isReady = [] { return true; })
        : m_isReady(std::move(isReady))
    {
        widget->installEventFilter(this);
    }
    void await() const
    {
        while (!m_hasPainted)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_hasPainted = m_hasPainted || (event->type() == QEvent::Paint && m_isReady());
        return false;
    }

private:
    std::function<bool()> m_isReady;
    bool m_hasPainted = false;
};

/// Loads the typical camera until @p window has painted its picture, with the rules over it.
void openCamera(CIntelligentRulesCtrl& window, const QString& block)
{
    auto* const surface = window.findChild<QRtspVideoWnd*>();
    const PaintWatch watch(surface, [surface] { return !surface->paneRect(0).isEmpty(); });
    window.setData(block, 1);
    watch.await();
}

void openRulesWindow(benchmark::State& state, int)
{
    KQGUI::KQSingleton<UICommonMdl::ChannelSources>::Instance().setAddress(QStringLiteral("1"),
                                                                           picturePath());
    const QString block = parameterBlock();
    for (auto _ : state) {
        state.PauseTiming();
        auto shown = std::make_unique<Window>();
        state.ResumeTiming();
        openCamera(shown->window, block);
        state.PauseTiming();
        shown.reset();
        state.ResumeTiming();
    }
}

/// A widget of the kind that @p original has, with the text that it shows.
QWidget* plainCopy(const QWidget& original)
{
    const QString text = original.property("text").toString();
    if (qobject_cast<const QLabel*>(&original))
        return new QLabel(text);
    if (qobject_cast<const QLineEdit*>(&original))
        return new QLineEdit(text);
    if (qobject_cast<const QCheckBox*>(&original))
        return new QCheckBox(text);
    if (qobject_cast<const QRadioButton*>(&original))
        return new QRadioButton(text);
    if (qobject_cast<const QAbstractButton*>(&original))
        return new QPushButton(text);
    return new QWidget;
}

class Picture : public QWidget
{
public:
    /// Read anew each time, as a camera's is: a QPixmap with a name would come from a cache.
    explicit Picture(const QString& path) : m_pixmap(QPixmap::fromImage(QImage(path))) {}

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).drawPixmap(rect(), m_pixmap); }

private:
    QPixmap m_pixmap;
};

/// The widgets that a load adds to the window.
std::vector<const QWidget*> added(Window& shown)
{
    const QList<QWidget*> before = shown.window.findChildren<QWidget*>();
    openCamera(shown.window, parameterBlock());
    std::vector<const QWidget*> widgets;
    for (const QWidget* widget : shown.window.findChildren<QWidget*>()) {
        if (!before.contains(const_cast<QWidget*>(widget)) && !widget->isWindow())
            widgets.push_back(widget);
    }
    return widgets;
}

/// Returns the picture, which the window owns.
QWidget* fill(QWidget& window, const std::vector<const QWidget*>& originals)
{
    constexpr int kColumns = 4;
    auto* layout = new QHBoxLayout(&window);
    auto* area = new QScrollArea;
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    for (int i = 0; i < int(originals.size()); ++i)
        grid->addWidget(plainCopy(*originals[std::size_t(i)]), i / kColumns, i % kColumns);
    area->setWidget(content);
    auto* picture = new Picture(picturePath());
    layout->addWidget(picture, 2);
    layout->addWidget(area, 1);
    return picture;
}

void openPlainWindow(benchmark::State& state, int)
{
    Window original;
    const std::vector<const QWidget*> originals = added(original);
    for (auto _ : state) {
        state.PauseTiming();
        auto window = std::make_unique<QWidget>();
        window->resize(kWindow);
        window->setStyleSheet(original.window.styleSheet());
        window->show();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        PaintWatch(fill(*window, originals)).await();
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}

} // namespace

void addOpenRow(BenchRows& rows)
{
    rows.push_back({"Open", "plain Qt: as many widgets, the style sheet, the picture", 1.3, 1, 0,
                    openRulesWindow, openPlainWindow});
}
