#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "fuzz/onepicture.h"
#include "host/video/channelsources.h"
#include "host/video/qrtspvideownd.h"
#include "scene/basetabelscene.h"
#include "tabel/titlelabel.h"
#include "tests/support/fixtures.h"
#include "tests/support/rulestest.h"
#include "tests/support/ruleswindow.h"
#include "tests/support/sampledocuments.h"

#include <functional>

using namespace SampleDocuments;
using IntelligentRulesUI::CIntelligentRulesCtrl;
using kql::Json::Value;

namespace
{

const QByteArray kChannel = R"("channalId": "C7")";
const char kPrompt[] = "Prompt: The current operation may affect the already running task. "
                       "Please confirm whether to modify it?";
const char kFullBlock[] = R"(, "selectionMode": true, "algorithmType": 1, "algorithmCode": "X9",
    "iPlayType": 3, "rtspUrl": "RTSP://host")";
const QString kSaved = R"({"result": 0, "algorithmId": "crossing", "channalId": "C7",
    "channelId": "C7", "algorithmType": %1, "algorithmCode": "%2", "channelAbilityPO": %3})";
const char kExited[] = R"({"result": -1, "algorithmId": "crossing", "channalId": "C7",
    "channelId": "C7", "algorithmType": 0, "algorithmCode": ""})";
const char kExitPrompt[] = "Prompt: Do you want to exit the current configuration?";

UICommonMdl::ChannelSources& sources()
{
    return KQGUI::KQSingleton<UICommonMdl::ChannelSources>::Instance();
}

/// What an operator does in the window, with a picture.
struct Desk : RulesWindow {
    void load(const QString& json) const { window->setData(json, 5); }
    void load(const QByteArray& rules = rule("Gate"), const QByteArray& more = {}) const
    {
        load(block(kChannel + more, config(rules)));
    }

    BaseTabelScene* panel(const char* name) const { return find<BaseTabelScene>(name); }
    QRtspVideoWnd* picture() const { return find<QRtspVideoWnd>("playerWin"); }
    QRect pictureRect() const { return picture()->paneRect(0); }
    DrawScene* canvas() const { return panel("rules")->getDrawScene(); }
    const BaseDraw* figure(int number) const
    {
        return canvas()->getItemList(BaseDrawType::None, -1).at(number)->figure();
    }

    /// Class names of the panels, the selected ones in brackets.
    QString panels() const
    {
        QStringList names;
        for (const BaseTabelScene* panel : window->findChildren<BaseTabelScene*>()) {
            const QString name = panel->metaObject()->className();
            if (panel->isVisible() && !panel->objectName().isEmpty())
                names.append(panel->getSelected() ? '[' + name + ']' : name);
        }
        return names.join(' ');
    }

    void press(const QPoint& at, Qt::MouseButton button = Qt::LeftButton) const
    {
        QTest::mouseClick(picture(), button, {}, pictureRect().topLeft() + at);
    }
    bool isPaintedOver() const
    {
        const QImage image = picture()->grab(pictureRect()).toImage();
        QImage grey(image.size(), image.format());
        grey.fill(Qt::gray);
        return image != grey;
    }
    Value takeMessage() { return Mailbox::json(mailbox.take().value(0).p2.toString()); }
};

} // namespace

class TstController : public RulesTest
{
    Q_OBJECT

    void prepare() override
    {
        sources().addMaker([this](const QString& address, const auto&...) {
            m_opened.append(address);
            return address.startsWith("grey:") ? std::make_unique<OnePicture>(m_size) : nullptr;
        });
    }
    void prepareTest() override { showPicture({640, 360}); }

    /// Gives every channel a grey picture of that size.
    void showPicture(const QSize& size)
    {
        m_size = size;
        sources().setDefaultAddress(QString("grey:%1").arg(size.width()));
        m_opened.clear();
    }

    QSize m_size;
    QStringList m_opened; ///< addresses that surfaces asked for

private slots:
    void readsParameterBlock()
    {
        const auto check = [](const QByteArray& members, const char* code, const char* channel,
                              bool isEditable = true) {
            Desk desk;
            desk.load(block(members, config(rule("Gate"))));
            QCOMPARE(desk.find<QLabel>("lblChnCode")->text(), QString(code));
            QCOMPARE(desk.find<QLabel>("lblChnName")->text(), QString("Gate 7"));
            QCOMPARE(desk.find("wgtChannelInfo")->isEnabled(), isEditable);
            QCOMPARE(desk.find("btnSave")->isVisible(), isEditable);
            QCOMPARE(desk.find("btnCancel")->isVisible(), isEditable);
            desk.window->sltCancel();
            const Value exited = desk.takeMessage();
            QCOMPARE(exited["channalId"].asString(), QString(channel));
            QCOMPARE(exited["channelId"].asString(), QString(channel));
        };
        check(R"("channelId": "other", "channalId": "C7")", "C7", "C7");
        check(R"("channelId": "other")", "other", "other");
        check(R"("channelId": "other", "channalId": [1])", "", "");
        check(kChannel + R"(, "channelSn": "SN1")", "SN1", "C7");
        check(kChannel + R"(, "channelSn": "")", "", "C7");
        check(kChannel + R"(, "editable": null)", "C7", "C7", false);
        check(kChannel + R"(, "editable": false, "selectionMode": true)", "C7", "C7");
    }

    void refusedBlockLeavesNothing()
    {
        const QString kCleared = "cleared";
        QStringList refused{"", "{", "[1]", "null", kCleared};
        for (const char* member : {"algorithmId", "channalId", "channelName",
                                   "videoConfigRuleProperty", "channelAbilityPO"}) {
            Value whole = Mailbox::json(block(kChannel, config(rule("Gate"))));
            whole.removeMember(member);
            refused.append(whole.toStyledText());
        }
        Desk desk;
        for (const QString& json : refused) {
            desk.load(rule("Gate"), R"(, "channelSn": "SN1", "editable": false)");
            QCOMPARE(desk.panels(), QString("[RuleScene] GlobalScene"));
            json == kCleared ? desk.window->clearData() : desk.load(json);
            for (const char* name : {"lblChnCode", "lblChnName"})
                QCOMPARE(desk.find<QLabel>(name)->text(), QString());
            QCOMPARE(desk.panels(), QString());
            QVERIFY_BOTH(desk.find("wgtChannelInfo")->isEnabled(), desk.pictureRect().isEmpty());
            QVERIFY_BOTH(desk.find("btnSave")->isVisible(), desk.find("btnCancel")->isVisible());
            QCOMPARE(desk.save() + desk.mailbox.takeHeads(), QStringList());
        }
    }

    void laterLoadStartsFromDefaults()
    {
        Desk desk;
        const QString live = sources().address(QString("C7"));
        const QString rtsp = "RTSP://host";
        desk.load(rule("Gate"), kFullBlock);
        QCOMPARE(desk.save(), QStringList());
        const QByteArray typed = rule("Gate", R"(, "Config": {"Type": "X9"})");
        QCOMPARE(desk.takeMessage(), Mailbox::json(kSaved.arg("1", "X9", config(typed))));

        desk.load();
        QCOMPARE(desk.save(), QStringList(kPrompt));
        QCOMPARE(desk.takeMessage(), Mailbox::json(kSaved.arg("0", "", config(rule("Gate")))));
        desk.load();
        QCOMPARE(m_opened, QStringList({rtsp, live, live}));
        desk.load(block(R"("channalId": "")", config(rule("Gate"))));
        QCOMPARE(m_opened.size(), 3);
        QVERIFY(desk.pictureRect().isEmpty());
    }

    void makesAPanelForEachScene()
    {
        Desk desk;
        desk.load(block(kChannel, "{}", Fixtures::contentOf("templates/everyscene.json")));
        QCOMPARE(desk.panels(),
                 QString("[CalibrateAreaScene] FightCalibrateScene LanesScene RuleScene "
                         "GlobalScene DetectionScene"));
        for (const QByteArray& none : {kNoScenes, QByteArray("{}"), QByteArray("\"text\"")}) {
            desk.load(block(kChannel, config(rule("Gate")), none));
            QCOMPARE(desk.panels(), QString());
        }
    }

    void routesTheMouse()
    {
        Desk desk;
        // A second binding must not deliver anything twice.
        desk.window->setInterfaceSetManager(&desk.manager);
        const auto isUnfinished = [&desk](const char* channel = "C7", const char* algorithm = "") {
            return desk.window->isDrawUnfinished(channel, algorithm);
        };
        desk.load();
        desk.press({10, 10});
        QVERIFY(!isUnfinished());
        desk.click("addRule");
        const BaseDraw* const drawn = desk.figure(1);
        const auto isTold = [&desk] { return desk.picture()->property("drawing").toBool(); };
        QVERIFY(isTold());
        desk.press({10, 10}, Qt::MiddleButton);
        QCOMPARE(drawn->pointCount(), 0);
        desk.press({300, 100});
        QCOMPARE(drawn->pointCount(), 1);
        QVERIFY_BOTH(isUnfinished(), isUnfinished("other", "crossing"));
        QVERIFY(!isUnfinished("other", "other"));
        QTest::mouseMove(desk.picture(), desk.pictureRect().topLeft() + QPoint(350, 120));
        const QPoint moved = drawn->movePoint().value_or(QPoint());
        QVERIFY((moved - QPoint(350, 120)).manhattanLength() <= 2);

        QCOMPARE(desk.save(), QStringList("Error: Please finish drawing Rule2."));
        desk.press({400, 100});
        desk.press({400, 200});
        desk.press({0, 0}, Qt::RightButton);
        QVERIFY_BOTH(drawn->isFinished(), isUnfinished());
        QVERIFY(!isTold());
        desk.click("btnSave");
        QVERIFY(!isUnfinished());
        // What was drawn before the save does not count for a press after it.
        desk.press({10, 10});
        QVERIFY(!isUnfinished());
        desk.click("redraw");
        QVERIFY(isTold());
        desk.window->clearData();
        QVERIFY(!isTold());
    }

    void selectionModeOnlySelects()
    {
        Desk desk;
        desk.load(rule("Gate", R"(, "High": 0, "Enable": false)"), R"(, "selectionMode": true)");
        QCOMPARE(desk.save(), QStringList("Error: Please select at least one rule"));
        QCOMPARE(desk.mailbox.takeHeads(), QStringList());
        desk.find<QAbstractButton>("enable")->click();
        QCOMPARE(desk.save(), QStringList());
        QCOMPARE(desk.mailbox.takeHeads(), QStringList("996 W1"));
        desk.canvas()->redrawItem(desk.canvas()->getFirstDrawItem()->itemId());
        desk.press({300, 100});
        QCOMPARE(desk.figure(0)->pointCount(), 0);
    }

    void canvasFollowsThePicture()
    {
        Desk desk;
        QSignalSpy sizes(desk.window, &CIntelligentRulesCtrl::sgnNotifyVideoSize);
        desk.load(block(kChannel, "{}", kNoScenes));
        QCoreApplication::sendPostedEvents();
        desk.window->resize(900, 500);
        desk.load();
        QVERIFY(desk.isPaintedOver());
        const auto fits = [&desk] {
            return desk.canvas()->canvasSize() == desk.pictureRect().size();
        };
        QVERIFY(fits());
        const QSize before = desk.pictureRect().size();
        desk.window->resize(1200, 700);
        QVERIFY_BOTH(desk.pictureRect().size() != before, fits());
        // Only a double click fits the canvas anew.
        desk.canvas()->setCanvasSize(1, 1);
        desk.window->OnWndClick(0, 5, 5);
        QVERIFY(!fits());
        desk.window->OnWndDbClick(1, 5, 5);
        QVERIFY(fits());
        showPicture({300, 300});
        QVERIFY_BOTH(desk.pictureRect().width() == desk.pictureRect().height(), fits());
        QCOMPARE(sizes, QList<QVariantList>({{640, 360}}));

        QTest::mouseClick(desk.panel("global"), Qt::LeftButton);
        QCOMPARE(desk.panels(), QString("RuleScene [GlobalScene]"));
        QCOMPARE(desk.panel("global")->getDrawScene()->canvasSize(), desk.pictureRect().size());
        QVERIFY(!desk.isPaintedOver());
    }

    void saveRefuses()
    {
        const auto check = [](const char* message, const QByteArray& config, bool isInRules) {
            Desk desk;
            desk.load(block(kChannel, config));
            desk.panel("rules")->setFold(true);
            desk.window->selectScene(desk.panel("global"));
            QCOMPARE(desk.save(), QStringList(QString("Error: ") + message));
            QCOMPARE(desk.panel("rules")->getSelected(), isInRules);
            QCOMPARE(desk.panel("rules")->getFold(), !isInRules);
            QCOMPARE(desk.mailbox.takeHeads(), QStringList());
        };
        check("Please add 1-3 Rule.", config(""), true);
        check("Low must be less than to High", config(rule("A", R"(, "High": 2)")), true);
        check("Duplicate rule name exists", config(rule("A") + "," + rule("A")), false);
        check("Duplicate rule name exists", config(rule("Rule2") + "," + rule("")), false);
        check("Span:The minimum value cannot be empty.", config(rule("A"), R"(["x", 5])"), false);
    }

    void asksBeforeItPosts()
    {
        Desk desk;
        const auto answers = [&desk](const char* button, QMessageBox::StandardButton answer) {
            desk.boxes.setAnswer(answer);
            desk.click(button);
            return desk.boxes.takeBoxes();
        };
        desk.load(rule("Gate") + ", " + rule("gate") + ", " + rule(""));
        QCOMPARE(answers("btnCancel", QMessageBox::No), QStringList(kExitPrompt));
        QCOMPARE(answers("btnSave", QMessageBox::No), QStringList(kPrompt));
        QCOMPARE(desk.mailbox.takeHeads(), QStringList());
        answers("btnSave", QMessageBox::Yes);
        const QByteArray named = rule("Gate") + ", " + rule("gate") + ", " + rule("Rule3");
        QCOMPARE(desk.takeMessage()["channelAbilityPO"], Mailbox::json(config(named)));
        answers("btnCancel", QMessageBox::Yes);
        QCOMPARE(desk.takeMessage(), Mailbox::json(kExited));

        // Where nothing runs yet, nothing is asked.
        desk.load(block(kChannel, "{}", kNoScenes));
        QCOMPARE(answers("btnSave", QMessageBox::No), QStringList());
        QCOMPARE(desk.mailbox.takeHeads(), QStringList("996 W1"));
    }

    void saysWhyNothingWasSaved()
    {
        struct Ending {
            bool isSelecting; ///< and all panels are folded
            std::function<void(Desk&)> end;
        };
        const auto pressPicture = [](Desk& desk) { desk.press({9, 9}); };
        const auto type = [](Desk& desk) {
            QTest::keyClicks(desk.find("level")->findChild<QLineEdit*>(), "7\r");
        };
        const Ending endings[] = {{false, [](Desk& desk) { desk.click("addRule"); }},
                                  {false, pressPicture},
                                  {false, type},
                                  {true, [](Desk& desk) { desk.load(); }},
                                  {true, [](Desk& desk) { desk.window->clearData(); }}};
        for (const Ending& ending : endings) {
            Desk desk;
            const QByteArray selection = ending.isSelecting ? R"(, "selectionMode": true)" : "";
            desk.load(block(kChannel + selection, config(rule("Gate")), kUnwritableTemplate));
            auto* const hint = desk.find<QLabel>("lblHint");
            QVERIFY(!hint->isVisible());
            for (BaseTabelScene* panel : desk.window->findChildren<BaseTabelScene*>())
                panel->setFold(ending.isSelecting);
            desk.click("btnSave");
            QCOMPARE(desk.mailbox.takeHeads(), QStringList());
            QVERIFY_BOTH(hint->isVisible(), hint->visibleRegion().boundingRect() == hint->rect());
            QCOMPARE(hint->text(), QString("Nothing was saved. The template has no "
                                           "\"configTemplate\" to write into."));
            ending.end(desk);
            QVERIFY(!hint->isVisible());
        }
    }

    /// However much there is to tell, Save stays where it is.
    void noticesFitBesideSave()
    {
        Desk desk;
        desk.load(rule("Gate"));
        const QSize size = desk.window->size();
        const QRect save = desk.find("btnSave")->geometry();
        QVERIFY(!desk.find("lblNotices")->isVisible());
        desk.load(rule(QByteArray(400, 'g'), R"(, "Low": "few", "High": [1])"));
        QCoreApplication::processEvents();
        QVERIFY(desk.find<TitleLabel>("lblNotices")->isElided());
        QVERIFY(desk.find("lblNotices")->width() > size.width() / 2);
        QCOMPARE(desk.window->size(), size);
        QCOMPARE(desk.find("btnSave")->geometry(), save);
        desk.window->clearData();
        QVERIFY(!desk.find("lblNotices")->isVisible());
    }

    /// What the window cannot show whole it does not save either.
    void refusesTooMuch()
    {
        Desk desk;
        const QByteArray gate = rule("Gate") + ',';
        desk.load(gate.repeated(3000) + rule("Gate"));
        QCOMPARE(desk.find<QLabel>("lblHint")->text(),
                 QString("The configuration has 3001 entries under \"Rules[]\"; at most 3000 can "
                         "be edited."));
        QVERIFY_BOTH(!desk.find("rules"), !desk.pictureRect().isEmpty());
        desk.click("btnSave");
        QCOMPARE(desk.mailbox.takeHeads(), QStringList());
        desk.load(QString(16 << 20, QChar::Space) + block(kChannel, config({})));
        QCOMPARE(desk.find<QLabel>("lblHint")->text(), QString("The documents are too long."));
        desk.load(block(kChannel, config({}), "{}"));
        QCOMPARE(desk.find<QLabel>("lblHint")->text(),
                 QString("The template has no \"configDescription\"."));
        // Indented, this has a hundred times the length.
        const QByteArray deep = QByteArray("[").repeated(400) + QByteArray("0,").repeated(1 << 20) +
                                '0' + QByteArray("]").repeated(400);
        desk.load(rule("Gate", ", \"More\": " + deep));
        QVERIFY_BOTH(desk.find("rules"), !desk.find("lblHint")->isVisible());
    }
};

QTEST_MAIN(TstController)
#include "tst_controller.moc"
