#include "fuzz/boxcloser.h"
#include "fuzz/fault.h"
#include "fuzz/harnesses.h"
#include "fuzz/inputbytes.h"

#include "Protocol/ruledata.h"
#include "draw/drawscene.h"
#include "host/channelsources.h"
#include "host/cinterfacesetmanager.h"
#include "host/nosignalsource.h"
#include "host/stillpicturesource.h"
#include "plugin/cintelligentruleswidget.h"
#include "plugin/modulelifetime.h"
#include "scene/basetabelscene.h"
#include "tabel/ruleitemwidgettabel.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QVariantMap>
#include <memory>

using Fuzz::require;

namespace
{

QString text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
}

/// @p kind tells in what kind of variant the parameter comes: mostly as text.
QVariant parameter(QChar kind, std::string_view utf8)
{
    switch (kind.unicode()) {
    case 'n':
        return {};
    case 'i':
        return text(utf8).toInt();
    case 'd':
        return text(utf8).toDouble();
    case 'b':
        return QByteArray(utf8.data(), static_cast<int>(utf8.size()));
    case 'l':
        return text(utf8).split(QLatin1Char('\n'));
    case 'm':
        return QVariantMap{{text(utf8), text(utf8)}};
    default:
        return text(utf8);
    }
}

/// A plug-in's widget in a host's window.
class Bench
{
public:
    Bench() : m_widget(std::make_unique<IntelligentRulesUI::CIntelligentRulesWidget>(&m_manager, 0))
    {
        m_parent = std::make_unique<QWidget>();
        m_parent->resize(800, 600);
        m_window = m_widget->GetWidget(m_parent.get());
        m_window->resize(800, 600);
        m_parent->show();
    }

    void take(const QString& head, std::string_view p1, std::string_view p2)
    {
        bool isMessage = false;
        const int id = head.section(QLatin1Char(' '), 0, 0).toInt(&isMessage);
        const QString kinds = head.section(QLatin1Char(' '), 1, 1);
        if (isMessage)
            m_widget->OnPluginMessage(id, parameter(kinds.isEmpty() ? QChar() : kinds[0], p1),
                                      parameter(kinds.size() < 2 ? QChar() : kinds[1], p2));
        else
            act(head, text(p1).toInt(), text(p2).toInt());
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        requireOrder();
    }

private:
    void act(const QString& action, int first, int second)
    {
        if (action == QLatin1String("unparent"))
            m_parent.reset();
        if (!m_window)
            return;
        if (action == QLatin1String("resize"))
            m_window->resize(first % 2000, second % 2000);
        else if (action == QLatin1String("paint"))
            m_window->grab();
        else if (action == QLatin1String("press") || action == QLatin1String("move"))
            mouse(action, {first % 100000, second % 100000});
        else
            click(action, first);
    }

    void click(const QString& name, int number)
    {
        const auto buttons = m_window->findChildren<QAbstractButton*>(name);
        if (buttons.isEmpty())
            return;
        const QPointer<QAbstractButton> button = buttons[(number & 0xFFFF) % buttons.size()];
        if (button->isEnabled())
            button->click();
    }

    void mouse(const QString& action, const QPoint& point)
    {
        auto* surface = m_window->findChild<QWidget*>(QStringLiteral("playerWin"));
        require(surface, "the window has no picture");
        const bool isMove = action == QLatin1String("move");
        QMouseEvent event(isMove ? QEvent::MouseMove : QEvent::MouseButtonPress, point,
                          isMove ? Qt::NoButton : Qt::LeftButton,
                          isMove ? Qt::NoButton : Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(surface, &event);
    }

    void requireOrder()
    {
        if (!m_window)
            return;
        for (const BaseTabelScene* panel : m_window->findChildren<BaseTabelScene*>()) {
            if (panel->ruleData())
                requireOrder(*panel, *panel->ruleData());
        }
    }

    static void requireOrder(const BaseTabelScene& panel, const RuleData& data)
    {
        const int selected = data.getSelectedDataId();
        require(selected <= 0 || data.getDataInfo(selected), "the selected entry does not exist");
        require(data.getDataCount() == 0 || selected > 0, "no entry is selected");
        require(panel.getDrawScene()->currentDataId() == selected || selected <= 0,
                "panel and canvas have different entries selected");
        const auto* table = panel.findChild<RuleItemWidgetTabel*>(QStringLiteral("drawItems"));
        require(table, "a panel has no buttons for entries");
        // The global section's one entry needs none.
        const bool hasButtons = data.getSceneType() != SceneType::Global;
        require(table->buttons().size() == (hasButtons ? data.getDataCount() : 0),
                "there are other buttons than entries in " + panel.objectName().toStdString());
    }

    CommonData::CInterfaceSetManager m_manager;
    std::unique_ptr<IntelligentRulesUI::CIntelligentRulesWidget> m_widget;
    std::unique_ptr<QWidget> m_parent;
    QPointer<QWidget> m_window;
};

/// No input reads a file or opens a connection: one still picture stands for all sources.
void cutSourcesOff()
{
    using UICommonMdl::ChannelSources;
    static const bool done = [] {
        IntelligentRulesUI::startModule();
        KQGUI::KQSingleton<ChannelSources>::Instance().addMaker(
            [](const QString& address, const UICommonMdl::StreamOptions&) {
                std::unique_ptr<UICommonMdl::PictureSource> source;
                if (address.startsWith(QLatin1String("sample:")))
                    source = std::make_unique<UICommonMdl::StillPictureSource>(
                        QStringLiteral(":/skin/IntelligentRulesUI/check.png"));
                else
                    source = std::make_unique<UICommonMdl::NoSignalSource>(address);
                return source;
            });
        return true;
    }();
    Q_UNUSED(done)
}

} // namespace

void Fuzz::messages(std::string_view input)
{
    cutSourcesOff();
    const BoxCloser closer;
    Bench bench;
    const auto parts = split(input, kSeparator);
    constexpr std::size_t kMostParts = 120;
    for (std::size_t i = 0; i + 2 < parts.size() && i < kMostParts; i += 3)
        bench.take(text(parts[i]), parts[i + 1], parts[i + 2]);
}
