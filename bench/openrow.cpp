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

/// Tells when its widget has painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget* widget) { widget->installEventFilter(this); }
    bool hasPainted() const { return m_hasPainted; }

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_hasPainted = m_hasPainted || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_hasPainted = false;
};

/// Until @p surface has painted a picture, with the rules over it.
void awaitPicture(QRtspVideoWnd* surface)
{
    while (surface->paneRect(0).isEmpty())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    const PaintWatch watch(surface);
    while (!watch.hasPainted())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void openCamera(benchmark::State& state, int)
{
    KQGUI::KQSingleton<UICommonMdl::ChannelSources>::Instance().setAddress(QStringLiteral("1"),
                                                                           picturePath());
    const QString block = parameterBlock();
    for (auto _ : state) {
        state.PauseTiming();
        auto shown = std::make_unique<Window>();
        auto* surface = shown->window.findChild<QRtspVideoWnd*>();
        state.ResumeTiming();
        shown->window.setData(block, 1);
        awaitPicture(surface);
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
    shown.window.setData(parameterBlock(), 1);
    awaitPicture(shown.window.findChild<QRtspVideoWnd*>());
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
        const PaintWatch watch(fill(*window, originals));
        while (!watch.hasPainted())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        state.PauseTiming();
        window.reset();
        state.ResumeTiming();
    }
}

} // namespace

void addOpenRow(BenchRows& rows)
{
    rows.push_back({"Open", "plain Qt: as many widgets, the style sheet, the picture", 1.3, 1, 0,
                    openCamera, openPlainWindow});
}
