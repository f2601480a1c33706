#include "draw/basedraw.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "fuzz/onepicture.h"
#include "host/video/channelsources.h"
#include "host/video/qrtspvideownd.h"
#include "scene/basetabelscene.h"
#include "tabel/drawitembutton.h"
#include "tabel/titlelabel.h"
#include "tests/support/rulestest.h"
#include "tests/support/ruleswindow.h"
#include "tests/support/sampledocuments.h"
#include "tests/support/script.h"

#include <functional>

using namespace SampleDocuments;
using IntelligentRulesUI::CIntelligentRulesCtrl;
using kql::Json::Value;

namespace
{

const QByteArray kChannel = R"("channalId": "C7")";

UICommonMdl::ChannelSources& sources()
{
    return KQGUI::KQSingleton<UICommonMdl::ChannelSources>::Instance();
}

QStringList g_opened; ///< addresses that surfaces asked for

/// What an operator does in the window, with a picture.
struct Desk : RulesWindow {
    void load(const QString& json) const { window->setData(json, 5); }
    void load(const QByteArray& rules = rule("Gate"), const QByteArray& more = {}) const
    {
        load(block(kChannel + more, config(rules)));
    }

    BaseTabelScene* panel(const QByteArray& name) const { return find<BaseTabelScene>(name); }
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
};

using Step = const Value&;

QByteArray text(Step step, int position = 1)
{
    return step[position].asString().toUtf8();
}

QPoint pointOf(Step step, int position)
{
    return {step[position][0].asInt(), step[position][1].asInt()};
}

/// As they stand in an object's text.
QByteArray members(const Value& object)
{
    return object.toCompactText().toUtf8().chopped(1).mid(1);
}

/// A template, by default the sample's, and a configuration or its rules, of which is told what
/// is not as in the sample; with the members that a block has besides.
void load(Desk& desk, Step step)
{
    const Value& given = step[1];
    QByteArrayList rules;
    for (int i = 0; i < given["rules"].size(); ++i)
        rules.append(rule({}, ", " + members(given["rules"][i])));
    const bool isWhole = given.isMember("config");
    desk.load(
        block(given.isMember("block") ? members(given["block"]) : kChannel,
              isWhole ? Fixtures::document(given["config"]) : config(rules.join(',')),
              given.isMember("template") ? Fixtures::document(given["template"]) : kTemplate));
}

void press(Desk& desk, Step step)
{
    const QHash<QByteArray, Qt::MouseButton> buttons{{"middle", Qt::MiddleButton},
                                                     {"right", Qt::RightButton}};
    QTest::mouseClick(desk.picture(), buttons.value(text(step, 2), Qt::LeftButton), {},
                      desk.pictureRect().topLeft() + pointOf(step, 1));
}

/// The message that was posted; as it should be, whatever the order of its members.
QString message(Desk& desk, Step step)
{
    const Value posted = Mailbox::json(desk.mailbox.take().value(0).p2.toString());
    return posted == step[1] ? step[1].toStyledText() : posted.toStyledText();
}

/// What an operator, or a client, does; and what there is to see.
const Script<Desk> kScript{
    {{"load", load},
     {"clear", [](Desk& d, Step) { d.window->clearData(); }},
     // A second binding must not deliver anything twice.
     {"bindAgain", [](Desk& d, Step) { d.window->setInterfaceSetManager(&d.manager); }},
     {"answer",
      [](Desk& d, Step s) {
          d.boxes.setAnswer(text(s) == "Yes" ? QMessageBox::Yes : QMessageBox::No);
      }},
     {"click", [](Desk& d, Step s) { d.click(text(s)); }},
     {"cancel", [](Desk& d, Step) { d.window->sltCancel(); }},
     {"fold", [](Desk& d, Step s) { d.panel(text(s))->setFold(true); }},
     {"select", [](Desk& d, Step s) { d.window->selectScene(d.panel(text(s))); }},
     {"keys",
      [](Desk& d, Step s) {
          QTest::keyClicks(d.find(text(s))->findChild<QLineEdit*>(), text(s, 2));
      }},
     {"press", press},
     {"move",
      [](Desk& d, Step s) {
          QTest::mouseMove(d.picture(), d.pictureRect().topLeft() + pointOf(s, 1));
      }},
     {"redraw",
      [](Desk& d, Step) { d.canvas()->redrawItem(d.canvas()->getFirstDrawItem()->itemId()); }}},
    {{"boxes", [](Desk& d, Step) { return d.boxes.takeBoxes(); }},
     {"posted", [](Desk& d, Step) { return d.mailbox.takeHeads(); }},
     {"message", message},
     {"opened", [](Desk&, Step) { return std::exchange(g_opened, {}); }},
     {"hasPicture", [](Desk& d, Step) { return !d.pictureRect().isEmpty(); }},
     {"panels", [](Desk& d, Step) { return d.panels(); }},
     {"text", [](Desk& d, Step s) { return d.find<QLabel>(text(s))->text(); }},
     {"isEnabled", [](Desk& d, Step s) { return d.find(text(s))->isEnabled(); }},
     {"isShown", [](Desk& d, Step s) { return d.find(text(s))->isVisible(); }},
     {"isWholeInView",
      [](Desk& d, Step s) {
          const QWidget* shown = d.find(text(s));
          return shown->visibleRegion().boundingRect() == shown->rect();
      }},
     {"is", [](Desk& d, Step s) { return d.find(text(s))->property(text(s, 2).constData()); }},
     {"points", [](Desk& d, Step s) { return d.figure(s[1].asInt())->pointCount(); }},
     {"isFinished", [](Desk& d, Step s) { return d.figure(s[1].asInt())->isFinished(); }},
     {"endsNear",
      [](Desk& d, Step s) {
          const QPoint end = d.figure(s[1].asInt())->movePoint().value_or(QPoint());
          return (end - pointOf(s, 2)).manhattanLength() <= 2;
      }},
     {"isUnfinished",
      [](Desk& d, Step s) { return d.window->isDrawUnfinished(text(s), text(s, 2)); }}}};

} // namespace

class TstController : public RulesTest
{
    Q_OBJECT

    void prepare() override
    {
        sources().addMaker([this](const QString& address, const auto&...) {
            g_opened.append(address);
            return address.startsWith("grey:") ? std::make_unique<OnePicture>(m_size) : nullptr;
        });
    }
    void prepareTest() override { showPicture({640, 360}); }

    /// Gives every channel a grey picture of that size.
    void showPicture(const QSize& size)
    {
        m_size = size;
        sources().setDefaultAddress(QString("grey:%1").arg(size.width()));
        g_opened.clear();
    }

    QSize m_size;

private slots:
    void works_data() { Fixtures::addRows("windows"); }

    void works()
    {
        QFETCH(const Value, fixture);
        Desk desk;
        kScript.play(desk, fixture);
    }

    void unfoldedSectionsScrollIntoView()
    {
        Desk desk;
        desk.window->resize(1000, 420);
        desk.load();
        desk.panel("global")->setFold(true);
        QScrollBar& bar = *desk.find<QScrollArea>("sceneView")->verticalScrollBar();
        QCOMPARE(bar.value(), 0);
        desk.panel("global")->setFold(false);
        const QWidget& last = *desk.find("level");
        QCOMPARE(last.visibleRegion().boundingRect(), last.rect());
        QVERIFY(bar.value() > 0);
    }

    /// Over the rows and in none of their tables, wherever the row goes.
    void tellsARangeBesideItsRow()
    {
        Desk desk;
        desk.window->resize(1000, 420);
        QApplication::setActiveWindow(desk.window);
        desk.load();
        const auto* const tip = desk.find<QLabel>("rangeTip");
        auto* const edit = desk.find("level")->findChild<QLineEdit*>();
        const auto beside = [&] {
            const int edge = edit->mapTo(tip->parentWidget(), QPoint()).y();
            return tip->isVisible() &&
                   (tip->y() == edge + edit->height() || tip->geometry().bottom() == edge - 1);
        };
        QVERIFY(!tip->isVisible());
        edit->setFocus(Qt::TabFocusReason);
        QVERIFY_BOTH(beside(), !tip->text().isEmpty());
        QCOMPARE(tip->parentWidget(), desk.find<QScrollArea>("sceneView")->viewport());
        QScrollBar& bar = *desk.find<QScrollArea>("sceneView")->verticalScrollBar();
        const int scrolled = bar.value();
        bar.setValue(scrolled - 20);
        QVERIFY(beside());
        bar.setValue(0);
        QVERIFY(!tip->isVisible());
        bar.setValue(scrolled);
        desk.panel("rules")->setFold(true);
        QVERIFY(beside());
        desk.panel("global")->setFold(true);
        QVERIFY(!tip->isVisible());
        desk.panel("global")->setFold(false);
        edit->setFocus();
        desk.load();
        QVERIFY(!tip->isVisible());
    }

    void wheelsScrollAndChangeNothing()
    {
        Desk desk;
        desk.window->resize(1000, 420);
        desk.load();
        QScrollBar& bar = *desk.find<QScrollArea>("sceneView")->verticalScrollBar();
        for (QWidget* over : desk.find("controls")->findChildren<QWidget*>()) {
            bar.setValue(0);
            over->setFocus();
            const QPoint middle = over->rect().center();
            QWheelEvent wheel(middle, over->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, {},
                              Qt::NoScrollPhase, false);
            QSpontaneKeyEvent::setSpontaneous(&wheel);
            qApp->notify(over, &wheel);
            QVERIFY2(bar.value() > 0 || !over->isVisible(), over->metaObject()->className());
        }
        QVERIFY(!desk.find("btnUndo")->isEnabled());
    }

    /// Each step is one of the history, as typing is, and steps in one row are one.
    void countingIsUndoneAtOnce()
    {
        Desk desk;
        QApplication::setActiveWindow(desk.window);
        desk.load();
        auto* const edit = desk.find("level")->findChild<QLineEdit*>();
        edit->setFocus();
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(edit, Qt::Key_Down);
        QCOMPARE(edit->text(), QString("1"));
        QTest::keyClick(edit, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(edit->text(), QString("4"));
        QVERIFY(!desk.find("btnUndo")->isEnabled());
    }

    /// Until something is done in the section that the focus came to.
    void keysWorkOnTheFigureInHand()
    {
        Desk desk;
        QApplication::setActiveWindow(desk.window);
        desk.load();
        desk.click("redraw");
        desk.press({100, 100});
        auto* const edit = desk.find("level")->findChild<QLineEdit*>();
        edit->setFocus(Qt::TabFocusReason);
        QVERIFY(desk.panel("rules")->getSelected());
        QTest::keyClick(edit, Qt::Key_Down);
        QVERIFY(desk.panel("global")->getSelected());
        desk.window->selectScene(desk.panel("rules"));
        desk.panel("global")->findChild<QWidget*>("titleBar")->setFocus(Qt::TabFocusReason);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
        QCOMPARE(desk.figure(0)->pointCount(), 0);
    }

    void staysInItsSectionBesideAnotherWindow()
    {
        Desk desk;
        QApplication::setActiveWindow(desk.window);
        desk.load(rule("Gate"));
        auto* const edit = desk.find("level")->findChild<QLineEdit*>();
        edit->setFocus(Qt::TabFocusReason);
        QVERIFY(desk.panel("global")->getSelected());
        QWidget other;
        other.show();
        QApplication::setActiveWindow(&other);
        desk.window->selectScene(desk.panel("rules"));
        QApplication::setActiveWindow(desk.window);
        QVERIFY_BOTH(desk.panel("rules")->getSelected(), QApplication::focusWidget() != edit);
    }

    void picksWithoutTheCrossHair()
    {
        Desk desk;
        QApplication::setActiveWindow(desk.window);
        desk.load(rule("Gate") + ", " + rule("Yard"));
        desk.picture()->setFocus();
        QTest::keyClick(desk.picture(), Qt::Key_Right);
        const auto describes = [&](const char* part) {
            return desk.picture()->accessibleDescription().contains(part);
        };
        QVERIFY_BOTH(describes("Cross-hair at"), describes("Gate, points: 3"));
        desk.panel("rules")->findChildren<DrawItemButton*>()[1]->click();
        QVERIFY_BOTH(!describes("Cross-hair at"), describes("Yard, points: 3"));
    }

    void tellsWhyNothingIsPasted()
    {
        Desk desk;
        QApplication::setActiveWindow(desk.window);
        desk.load();
        const QLabel& hint = *desk.find<QLabel>("lblHint");
        QTest::keyClick(desk.picture(), Qt::Key_V, Qt::ControlModifier);
        QVERIFY(!hint.isVisible());
        QTest::keyClick(desk.picture(), Qt::Key_C, Qt::ControlModifier);
        for (int i = 0; i < 40 && !hint.isVisible(); ++i)
            QTest::keyClick(desk.picture(), Qt::Key_V, Qt::ControlModifier);
        QVERIFY(hint.text().contains("as many entries"));
    }

    /// Both ways, and nothing else comes of it.
    void pointsOutFiguresAndButtons()
    {
        Desk desk;
        desk.load(rule("Gate") + ", " +
                  rule("Yard", R"(, "Area": [[4500, 4500], [8000, 4500], [8000, 8000]])"));
        const auto buttons = desk.panel("rules")->findChildren<DrawItemButton*>();
        const auto emphasised = [&] {
            return QPair<bool, bool>(buttons[0]->isEmphasised(), buttons[1]->isEmphasised());
        };
        const QSize size = desk.pictureRect().size();
        const auto moveTo = [&](int x, int y) {
            QTest::mouseMove(desk.picture(),
                             desk.pictureRect().topLeft() +
                                 QPoint(size.width() * x / 8192, size.height() * y / 8192));
        };
        QSignalSpy selections(desk.canvas(), &DrawScene::sgnSelectedStatusChange);
        for (const auto& seen : {qMakePair(false, true), qMakePair(true, false)}) {
            seen.second ? moveTo(7500, 5500) : moveTo(3000, 1500);
            QCOMPARE(emphasised(), seen);
        }
        moveTo(1000, 7000);
        QCOMPARE(emphasised(), qMakePair(false, false));
        moveTo(3000, 1500);
        QTest::mouseMove(desk.find("btnSave"));
        QCOMPARE(emphasised(), qMakePair(false, false));
        const QImage before = desk.picture()->grab(desk.pictureRect()).toImage();
        QTest::mouseMove(buttons[1]);
        QVERIFY(desk.picture()->grab(desk.pictureRect()).toImage() != before);
        QTest::mouseMove(desk.find("btnSave"));
        QCOMPARE(desk.picture()->grab(desk.pictureRect()).toImage(), before);
        QCOMPARE(selections.count(), 0);
        QCOMPARE(desk.canvas()->message(), QString());
        QVERIFY(!desk.find("btnUndo")->isEnabled());
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

    void canvasFollowsThePicture()
    {
        Desk desk;
        QSignalSpy sizes(desk.window, &CIntelligentRulesCtrl::sgnNotifyVideoSize);
        desk.load(block(kChannel, "{}", R"({"configDescription": {}})"));
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
