#include "fuzz/client/randomclient.h"

#include "fuzz/client/clientplace.h"
#include "fuzz/fault.h"

#include "host/api/iabstractui.h"
#include "host/api/iabstractwidget.h"
#include "host/api/pluginmessages.h"
#include "host/video/channelsources.h"
#include "host/video/picturesource.h"
#include "host/video/qrtspvideownd.h"
#include "plugin/cintelligentrulesuiplugin.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QImage>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QTextStream>

using Fuzz::require;
using namespace IntelligentRulesUI;

namespace
{

constexpr std::size_t kWindows = 4;
constexpr std::size_t kPlaces = 3;

QString contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// All combinations of an example's template with its configurations.
QStringList loadableDocuments()
{
    QStringList documents;
    const QDir examples(QStringLiteral(RULES_EXAMPLES_DIR));
    for (const QString& name : examples.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QString rules = contentOf(examples.filePath(name + QStringLiteral("/template.json")));
        const QString config = contentOf(examples.filePath(name + QStringLiteral("/config.json")));
        if (rules.isEmpty())
            continue;
        documents.append(QStringLiteral(R"("videoConfigRuleProperty": %1, "channelAbilityPO": %2)")
                             .arg(rules, config));
    }
    return documents;
}

/// As the window system delivers a key: to whatever has the focus.
void type(QWidget& window, const QString& text)
{
    for (const QEvent::Type what : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QWidget* const focused = QApplication::focusWidget();
        QKeyEvent event(what, text[0].toUpper().unicode(), Qt::NoModifier, text);
        QApplication::sendEvent(focused ? focused : &window, &event);
    }
}

std::string nameOf(const QWidget* widget)
{
    if (!widget)
        return "nobody";
    const std::string kind = widget->metaObject()->className();
    const std::string seen = widget->isVisible() ? " (seen) in " : " (unseen) in ";
    return kind + seen + widget->window()->metaObject()->className();
}

/// What a query must leave as it is.
QString stateOf(const QWidget* focused)
{
    const auto* const edit = qobject_cast<const QLineEdit*>(focused);
    const QString address = QString::number(reinterpret_cast<quintptr>(focused));
    return edit ? QStringLiteral("%1 %2 %3 %4")
                      .arg(address, edit->text(), edit->selectedText())
                      .arg(edit->cursorPosition())
                : address;
}

} // namespace

RandomClient::RandomClient(unsigned seed) : m_random(seed), m_documents(loadableDocuments())
{
    QImage picture(640, 360, QImage::Format_RGB32);
    picture.fill(Qt::gray);
    const QString file = m_folder.filePath(QStringLiteral("picture.png"));
    picture.save(file);
    KQGUI::KQSingleton<UICommonMdl::ChannelSources>::Instance().setDefaultAddress(file);
    m_plugin = std::make_unique<CIntelligentRulesUIPlugin>();
    connect(qApp, &QApplication::focusChanged, this, &RandomClient::focusMoved);
}

RandomClient::~RandomClient()
{
    disconnect(qApp, nullptr, this, nullptr);
    m_places.clear();
    endModule();
}

const std::vector<RandomClient::Step>& RandomClient::steps()
{
    static const std::vector<Step> all{{10, "load", &RandomClient::load},
                                       {4, "clear", &RandomClient::clear},
                                       {8, "query", &RandomClient::query},
                                       {12, "turn", &RandomClient::turn},
                                       {8, "show or hide", &RandomClient::showOrHide},
                                       {6, "reparent", &RandomClient::reparent},
                                       {3, "take out", &RandomClient::takeOut},
                                       {3, "delete a window", &RandomClient::deleteWindow},
                                       {2, "delete a place", &RandomClient::deletePlace},
                                       {12, "type into its own", &RandomClient::typeIntoOwn},
                                       {8, "type anywhere", &RandomClient::typeAnywhere},
                                       {10, "enter a row", &RandomClient::enterRow},
                                       {8, "click", &RandomClient::clickButton},
                                       {8, "press the picture", &RandomClient::pressPicture},
                                       {3, "resize", &RandomClient::resizePlace},
                                       {2, "paint", &RandomClient::paint},
                                       {1, "end the module", &RandomClient::endModule}};
    return all;
}

bool RandomClient::play(int count)
{
    int done = 0;
    const char* name = "begin";
    try {
        for (; done < count; ++done) {
            begin();
            std::vector<int> weights;
            for (const Step& step : steps())
                weights.push_back(step.weight);
            std::discrete_distribution<std::size_t> pick(weights.begin(), weights.end());
            const Step& step = steps()[pick(m_random)];
            name = step.name;
            if (m_isVerbose)
                QTextStream(stderr) << done << ' ' << name << '\n';
            (this->*step.act)();
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            requireOrder();
        }
    } catch (const Fuzz::Fault& fault) {
        m_report = QStringLiteral("Step %1 (%2): %3").arg(done).arg(name, fault.what());
        return false;
    }
    m_report = QStringLiteral("%1 steps, %2 loads, %3 keys into the client's own edits")
                   .arg(done)
                   .arg(m_loads)
                   .arg(m_typed);
    return true;
}

/// Makes anew what went.
void RandomClient::begin()
{
    while (m_places.size() < kPlaces) {
        m_places.push_back(
            std::make_unique<ClientPlace>(ClientPlace::Kind(number(ClientPlace::KindCount))));
        m_places.back()->resize(900, 600);
        m_places.back()->show();
    }
    if (!m_plugin->GetUI())
        m_plugin->Init();
    while (m_rules.size() < kWindows)
        m_rules.push_back({m_plugin->GetUI()->CreateWidget(), {}});
    for (Rules& one : m_rules) {
        if (one.window)
            continue;
        one.window = one.handle->GetWidget(nullptr);
        place().take(one.window);
    }
}

void RandomClient::requireOrder() const
{
    const QWidget* const focused = QApplication::focusWidget();
    for (const Rules& one : m_rules) {
        if (focused && one.window && one.window->isAncestorOf(focused))
            require(focused->isVisible() || !focused->window()->isVisible(),
                    "the focus has " + nameOf(focused));
    }
}

void RandomClient::focusMoved()
{
    if (m_isAnswering || m_rules.empty() || number(8) != 0)
        return;
    m_isAnswering = true;
    const Rules& one = rules();
    const int messages[] = {PluginMsgCloseRules, PluginMsgQueryUnfinishedDraw, PluginMsgOpenRules};
    send(one, messages[number(m_isDeleting ? 2 : 3)], m_documents[number(m_documents.size())]);
    m_isAnswering = false;
}

ClientPlace& RandomClient::place()
{
    return *m_places[static_cast<std::size_t>(number(int(m_places.size())))];
}

void RandomClient::send(const Rules& to, int message, const QString& parameters)
{
    const QString id = QString::fromStdString(to.handle->GetWidgetID());
    if (message == PluginMsgOpenRules) {
        const auto address = QStringLiteral(R"({"pluginWidgetID": "%1", "iSessionID": 1})").arg(id);
        const auto block =
            QStringLiteral(R"({"algorithmId": "a", "channelName": "n", "channalId": "C1", %1})");
        to.handle->OnPluginMessage(message, address, block.arg(parameters));
    } else {
        to.handle->OnPluginMessage(message, id,
                                   QStringLiteral(R"({"params": {"channalId": "C1"}})"));
    }
}

void RandomClient::load()
{
    static const QStringList more{{},
                                  {},
                                  QStringLiteral(R"(, "editable": false)"),
                                  QStringLiteral(R"(, "selectionMode": true)"),
                                  QStringLiteral("}")};
    ++m_loads;
    send(rules(), PluginMsgOpenRules,
         m_documents[number(m_documents.size())] + more[number(more.size())]);
}

void RandomClient::clear()
{
    send(rules(), PluginMsgCloseRules, {});
}

void RandomClient::query()
{
    const QString before = stateOf(QApplication::focusWidget());
    send(rules(), PluginMsgQueryUnfinishedDraw, {});
    require(stateOf(QApplication::focusWidget()) == before,
            "a query changed the edit or the focus");
}

void RandomClient::turn()
{
    place().turn(number(8));
}

void RandomClient::showOrHide()
{
    QWidget& window = number(4) == 0 ? static_cast<QWidget&>(place()) : *rules().window;
    window.setVisible(!window.isVisible());
}

void RandomClient::reparent()
{
    place().take(rules().window);
}

void RandomClient::takeOut()
{
    const QPointer<QWidget> window = rules().window;
    window->setParent(nullptr);
    if (window && number(2) == 0)
        window->show();
}

void RandomClient::deleteWindow()
{
    const QScopedValueRollback<bool> guard(m_isDeleting, true);
    delete rules().window;
}

void RandomClient::deletePlace()
{
    // In a window that is being destroyed Qt cannot make widgets.
    const QScopedValueRollback<bool> guard(m_isDeleting, true);
    m_places.erase(m_places.begin() + number(int(m_places.size())));
}

void RandomClient::typeIntoOwn()
{
    ClientPlace& one = place();
    if (!one.isVisible())
        return;
    // A load that answers the focus would rightly take it.
    const QScopedValueRollback<bool> guard(m_isAnswering, true);
    QCoreApplication::processEvents();
    QApplication::setActiveWindow(&one);
    one.edit()->setFocus();
    one.edit()->clear();
    type(one, QStringLiteral("k"));
    require(one.edit()->text() == QLatin1String("k"),
            "a key went to " + nameOf(QApplication::focusWidget()));
    ++m_typed;
}

void RandomClient::typeAnywhere()
{
    static const QStringList keys{QStringLiteral("7"), QStringLiteral("\t"), QStringLiteral("\b"),
                                  QStringLiteral("\r"), QStringLiteral("x")};
    type(place(), keys[number(keys.size())]);
}

void RandomClient::enterRow()
{
    const Rules& one = rules();
    const auto edits = one.window->findChildren<QLineEdit*>();
    if (edits.isEmpty())
        return;
    const QPointer<QLineEdit> edit = edits[number(edits.size())];
    if (!edit->isVisible())
        return;
    QApplication::setActiveWindow(edit->window());
    if (edit)
        edit->setFocus(Qt::MouseFocusReason);
}

void RandomClient::clickButton()
{
    const auto buttons = rules().window->findChildren<QAbstractButton*>();
    if (buttons.isEmpty())
        return;
    const QPointer<QAbstractButton> button = buttons[number(buttons.size())];
    if (!button->isVisible() || button->objectName() == QLatin1String("snapshot"))
        return;
    button->setFocus(Qt::MouseFocusReason);
    if (button && button->isEnabled())
        button->click();
}

void RandomClient::pressPicture()
{
    auto* const surface = rules().window->findChild<QRtspVideoWnd*>();
    const QRect picture = surface->paneRect(0);
    if (picture.isEmpty())
        return;
    const QPoint at(picture.left() + number(picture.width()),
                    picture.top() + number(picture.height()));
    const Qt::MouseButton button = number(4) == 0 ? Qt::RightButton : Qt::LeftButton;
    QMouseEvent event(QEvent::MouseButtonPress, at, button, button, {});
    QApplication::sendEvent(surface, &event);
}

void RandomClient::resizePlace()
{
    place().resize(300 + number(1200), 200 + number(800));
}

void RandomClient::paint()
{
    place().grab();
}

/// Windows without a parent go with it; the others are the client's.
void RandomClient::endModule()
{
    // The handles go one by one; to those that went no message can be sent.
    const QScopedValueRollback<bool> guard(m_isAnswering, true);
    m_plugin->UnInit();
    for (const Rules& one : m_rules)
        delete one.window;
    m_rules.clear();
}
