#include "fuzz/boxcloser.h"
#include "fuzz/fault.h"
#include "fuzz/harnesses.h"
#include "fuzz/inputbytes.h"
#include "fuzz/onepicture.h"
#include "fuzz/scenetext.h"

#include "Protocol/ruledata.h"
#include "Protocol/ruledatainfo.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "host/api/cinterfacesetmanager.h"
#include "host/api/pluginmessages.h"
#include "host/json/reader.h"
#include "host/json/value.h"
#include "host/video/channelsources.h"
#include "host/video/nosignalsource.h"
#include "plugin/cintelligentruleswidget.h"
#include "plugin/modulelifetime.h"
#include "scene/globalscene.h"
#include "tabel/drawitembutton.h"
#include "tabel/ruleitemwidgettabel.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QMap>
#include <QMouseEvent>
#include <QPointer>
#include <QVariantMap>
#include <algorithm>
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

/// What a window holds: changed by what is meant for it, and by nothing else.
struct Contents {
    std::string entries; ///< of all panels, with their figures
    QVector<int> shown;  ///< each panel's selected entry and buttons

    bool operator==(const Contents& other) const
    {
        return entries == other.entries && shown == other.shown;
    }
};

/// A plug-in's widget in a window of the host. Windows outlive the input: making one takes much
/// longer than loading it anew.
class Window
{
public:
    explicit Window(int number)
        : m_widget(
              std::make_unique<IntelligentRulesUI::CIntelligentRulesWidget>(&m_manager, number))
    {
    }

    /// As it is before the first message.
    void reset()
    {
        if (!m_content) {
            m_parent = std::make_unique<QWidget>();
            m_content = m_widget->GetWidget(m_parent.get());
            // No document changes the skin, and no picture is looked at unless it is asked for.
            m_content->setStyleSheet({});
            m_parent->setUpdatesEnabled(false);
            m_parent->show();
        }
        send(0, id(), {});
        m_parent->resize(kSize);
        m_content->resize(kSize);
        settle();
        require(panels().isEmpty(), "a closed window has panels");
        m_before = contents();
    }

    QString id() const { return QString::fromStdString(m_widget->GetWidgetID()); }

    bool isFor(int message, const QVariant& p1) const
    {
        kql::Json::Value address;
        kql::Json::Reader().parse(p1.toString(), address);
        return message == 0 ? p1.toString() == id() : address["pluginWidgetID"].asString() == id();
    }

    void send(int message, const QVariant& p1, const QVariant& p2)
    {
        m_widget->OnPluginMessage(message, p1, p2);
    }

    void act(const QString& action, int number, const QString& more)
    {
        if (action == QLatin1String("unparent"))
            m_parent.reset();
        if (!m_content)
            return;
        if (action == QLatin1String("resize"))
            m_content->resize(number % 2000, more.toInt() % 2000);
        else if (action == QLatin1String("paint"))
            paint();
        else if (action == QLatin1String("edit"))
            edit(number, more);
        else if (mouseButtons().contains(action))
            mouse(action, {number % 100000, more.toInt() % 100000});
        else
            click(action, number);
    }

    /// Whether the mouse on the picture goes to a figure that is not finished.
    bool isDrawing() const
    {
        const auto all = panels();
        return std::any_of(all.begin(), all.end(), [](const BaseTabelScene* panel) {
            const DrawScene& canvas = *panel->getDrawScene();
            const DrawItem* item = canvas.selectedItem(canvas.currentDataId());
            return !panel->getSelectMode() && item && !item->isFinished();
        });
    }

    /// Whether @p action may change entries or figures now.
    bool isChangedBy(const QString& action) const
    {
        static const QStringList harmless{QStringLiteral("resize"), QStringLiteral("paint"),
                                          QStringLiteral("btnSave"), QStringLiteral("btnCancel")};
        return mouseButtons().contains(action) ? isDrawing() : !harmless.contains(action);
    }

    static void settle()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// After each step; @p mayShow: another entry or panel, @p mayChange: entries, too.
    void requireOrder(bool mayShow, bool mayChange)
    {
        for (const BaseTabelScene* panel : panels())
            requireOrder(*panel, *panel->ruleData());
        Contents now = contents();
        require(mayShow || now == m_before, id().toStdString() + " was changed from outside");
        require(mayChange || now.entries == m_before.entries,
                "a refused action changed\n" + m_before.entries + "to\n" + now.entries);
        m_before = std::move(now);
    }

private:
    static constexpr QSize kSize{800, 600};

    /// What the mouse does on the picture, by the word for it.
    static const QMap<QString, Qt::MouseButton>& mouseButtons()
    {
        static const QMap<QString, Qt::MouseButton> buttons{
            {QStringLiteral("press"), Qt::LeftButton},
            {QStringLiteral("right"), Qt::RightButton},
            {QStringLiteral("move"), Qt::NoButton}};
        return buttons;
    }

    QList<BaseTabelScene*> panels() const
    {
        if (!m_content)
            return {};
        auto panels = m_content->findChildren<BaseTabelScene*>();
        panels.erase(std::remove_if(panels.begin(), panels.end(),
                                    [](const auto* panel) { return !panel->ruleData(); }),
                     panels.end());
        return panels;
    }

    static const RuleItemWidgetTabel& buttonsOf(const BaseTabelScene& panel)
    {
        const auto* table = panel.findChild<RuleItemWidgetTabel*>(QStringLiteral("drawItems"));
        require(table, "a panel has no buttons for entries");
        return *table;
    }

    Contents contents() const
    {
        Contents all;
        for (const BaseTabelScene* panel : panels()) {
            all.entries += SceneText::of(*panel->ruleData());
            all.shown << panel->ruleData()->getSelectedDataId() << panel->getSelected();
            for (const DrawItemButton* button : buttonsOf(*panel).buttons())
                all.shown << button->dataId() << button->id();
        }
        return all;
    }

    void paint()
    {
        m_parent->setUpdatesEnabled(true);
        m_content->grab();
        m_parent->setUpdatesEnabled(false);
    }

    void click(const QString& name, int number)
    {
        const auto buttons = m_content->findChildren<QAbstractButton*>(name);
        if (buttons.isEmpty())
            return;
        const QPointer<QAbstractButton> button = buttons[(number & 0xFFFF) % buttons.size()];
        if (button->isEnabled())
            button->click();
    }

    /// Types @p typed over what a row shows, as far as the row takes it.
    void edit(int number, const QString& typed)
    {
        const auto edits = m_content->findChildren<QLineEdit*>();
        if (edits.isEmpty())
            return;
        const QPointer<QLineEdit> edit = edits[(number & 0xFFFF) % edits.size()];
        if (!edit->isEnabled())
            return;
        edit->selectAll();
        edit->insert(typed);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        if (edit)
            QApplication::sendEvent(edit, &press);
    }

    void mouse(const QString& action, const QPoint& point)
    {
        auto* surface = m_content->findChild<QWidget*>(QStringLiteral("playerWin"));
        require(surface, "the window has no picture");
        const Qt::MouseButton button = mouseButtons().value(action);
        const bool isMove = button == Qt::NoButton;
        QMouseEvent event(isMove ? QEvent::MouseMove : QEvent::MouseButtonPress, point, button,
                          button, Qt::NoModifier);
        QApplication::sendEvent(surface, &event);
    }

    static void requireOrder(const BaseTabelScene& panel, const RuleData& data)
    {
        const int selected = data.getSelectedDataId();
        require(selected <= 0 || data.getDataInfo(selected), "the selected entry does not exist");
        require(data.getDataCount() == 0 || selected > 0, "no entry is selected");
        require(panel.getDrawScene()->currentDataId() == selected || selected <= 0,
                "panel and canvas have different entries selected");
        // The global section's one entry needs none.
        const bool hasButtons = !qobject_cast<const GlobalScene*>(&panel);
        requireButtons(buttonsOf(panel), data, hasButtons ? data.getDataCount() : 0);
    }

    /// One button for each entry, in their order, that leads to a figure of the entry, if any.
    static void requireButtons(const RuleItemWidgetTabel& table, const RuleData& data, int count)
    {
        require(table.buttons().size() == count, "there are other buttons than entries");
        for (int i = 0; i < count; ++i) {
            const DrawItemButton& button = *table.buttons()[i];
            require(button.dataId() == data.getAllData()[std::size_t(i)]->id(),
                    "a button stands for another entry");
            const DrawItem* figure = data.getDrawScene()->findItem(button.id());
            require(button.id() == 0 || (figure && figure->dataId() == button.dataId()),
                    "a button stands for another entry's figure");
        }
        require(count == 0 || (table.currentButton() &&
                               table.currentButton()->dataId() == data.getSelectedDataId()),
                "the current button is not the selected entry's");
    }

    CommonData::CInterfaceSetManager m_manager;
    std::unique_ptr<IntelligentRulesUI::CIntelligentRulesWidget> m_widget;
    std::unique_ptr<QWidget> m_parent;
    QPointer<QWidget> m_content;
    Contents m_before;
};

/// Two windows of one host, side by side.
class Bench
{
public:
    void reset()
    {
        for (Window& window : m_windows)
            window.reset();
    }

    /// An action goes to the first window, one that ends in "@2" to the second.
    void take(const QString& head, std::string_view p1, std::string_view p2)
    {
        bool isMessage = false;
        const int id = head.section(QLatin1Char(' '), 0, 0).toInt(&isMessage);
        if (isMessage)
            send(id, head.section(QLatin1Char(' '), 1, 1), p1, p2);
        else
            act(head, text(p1).toInt(), text(p2));
    }

private:
    void send(int id, const QString& kinds, std::string_view p1, std::string_view p2)
    {
        const QVariant first = parameter(kinds.isEmpty() ? QChar() : kinds[0], p1);
        const QVariant second = parameter(kinds.size() < 2 ? QChar() : kinds[1], p2);
        for (Window& window : m_windows)
            window.send(id, first, second);
        Window::settle();
        const bool isQuery = id == IntelligentRulesUI::PluginMsgQueryUnfinishedDraw;
        for (Window& window : m_windows) {
            const bool mayChange = !isQuery && window.isFor(id, first);
            window.requireOrder(mayChange, mayChange);
        }
    }

    void act(QString action, int number, const QString& more)
    {
        const bool isSecond = action.endsWith(QLatin1String("@2"));
        if (isSecond)
            action.chop(2);
        Window& own = m_windows[isSecond ? 1 : 0];
        const bool mayChange = own.isChangedBy(action);
        const bool wasDrawing = own.isDrawing();
        own.act(action, number, more);
        Window::settle();
        // A save that is refused for a figure that is missing starts it.
        const bool hasStarted =
            action == QLatin1String("btnSave") && !wasDrawing && own.isDrawing();
        own.requireOrder(true, mayChange || hasStarted);
        m_windows[isSecond ? 0 : 1].requireOrder(false, false);
    }

    Window m_windows[2] = {Window(0), Window(1)};
};

/// The one of the process, which stays until its end: then widgets cannot be deleted any more.
Bench& bench()
{
    static auto* const bench = new Bench;
    return *bench;
}

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
                    source = std::make_unique<OnePicture>(
                        QImage(QStringLiteral(":/skin/IntelligentRulesUI/check.png")));
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
    bench().reset();
    const auto parts = split(input, kSeparator);
    constexpr std::size_t kMostParts = 120;
    for (std::size_t i = 0; i + 2 < parts.size() && i < kMostParts; i += 3)
        bench().take(text(parts[i]), parts[i + 1], parts[i + 2]);
}
