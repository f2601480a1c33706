#include "tabel/layoutpause.h"
#include "tabel/titlelabel.h"
#include "tabel/widgettabel.h"
#include "tabel/widgettabelview.h"
#include "tests/support/fixtures.h"
#include "tests/support/rulestest.h"

namespace
{

/// A child that counts how often it is laid out, which is once a pass of its table.
class Probe : public WidgetLayout
{
public:
    void relayout(int, int) override { ++passes; }

    int passes = 0;
};

QWidget* box(const QSize& size)
{
    auto* widget = new QWidget;
    widget->resize(size);
    return widget;
}

/// "x,y wxh" of each child, joined by "; ".
QString placements(const WidgetTabel& table)
{
    QStringList texts;
    for (const QWidget* item : table.items()) {
        const QRect r = item->geometry();
        texts.append(QString("%1,%2 %3x%4").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height()));
    }
    return texts.join(QString("; "));
}

} // namespace

class TstWidgetTabel : public RulesTest
{
    Q_OBJECT

private slots:
    void places_data() { Fixtures::addRows("layouts.json"); }

    /// A table's children, and where they and its bottom edge come to be.
    void places()
    {
        QFETCH(const kql::Json::Value, fixture);
        const QHash<QString, ItemSizeType> kinds{{"count", ItemSizeType::ItemFixCount},
                                                 {"flow", ItemSizeType::ItemFlow},
                                                 {"cells", ItemSizeType::ItemFixSize}};
        const auto sizeOf = [](const auto& list) { return Fixtures::valueOf(list).toSize(); };
        const QString expected = Fixtures::textsOf(fixture["places"]).join("; ");
        WidgetTabel table;
        table.setItemType(kinds[fixture["kind"].asString()]);
        const QSize limits = sizeOf(fixture["limits"]);
        table.setFixCountLimit(limits.width(), limits.height());
        table.resize(fixture["width"].asInt(), 77);
        for (int i = 0; i < fixture["sizes"].size(); ++i)
            table.addWidget(box(sizeOf(fixture["sizes"][i])), false);
        table.relayout(0, 0);
        QCOMPARE(placements(table), expected);
        QCOMPARE(table.size(), QSize(fixture["width"].asInt(), fixture["height"].asInt()));
        // The same again, shown: what children do on the way changes nothing.
        table.show();
        table.relayout(0, 0);
        QCOMPARE(placements(table), expected);
    }

    void placesTheTitle()
    {
        const QString caption = QString("A caption longer than its <b>place</b>");
        WidgetTabel table;
        table.resize(300, 77);
        table.setTitle(QString());
        QVERIFY(table.titleLabel()->isHidden());
        table.setTitle(caption);
        QCOMPARE(table.height(), 50);
        QCOMPARE(table.titleLabel()->geometry(), QRect(10, 10, 80, 30));
        table.addWidget(box({50, 40}), true);
        QCOMPARE(placements(table), QString("95,10 195x40"));
        QCOMPARE(table.titleLabel()->geometry(), QRect(10, 15, 80, 30));

        QCOMPARE(table.titleLabel()->text(), caption);
        QVERIFY(table.titleLabel()->isElided());
        QVERIFY(table.titleLabel()->toolTip().contains("&lt;b&gt;"));
        table.setTitle(QString());
        QVERIFY(!table.titleLabel()->isHidden());
        QCOMPARE(placements(table), QString("10,10 280x40"));
        // A start that is given holds for this layout only.
        table.relayout(40, 20);
        QCOMPARE(placements(table), QString("40,20 250x40"));
        table.relayout(0, 0);
        QCOMPARE(placements(table), QString("10,10 280x40"));
    }

    void closesAndReopensGaps()
    {
        for (bool shown : {true, false}) {
            WidgetTabel table;
            table.resize(100, 10);
            QWidget* first = box({50, 20});
            QWidget* second = box({50, 20});
            table.addWidget(first, true);
            table.addWidget(second, true);
            table.setVisible(shown);
            first->hide();
            QCOMPARE(second->y(), 10);
            QCOMPARE(table.height(), 40);
            table.setControlEnable(false); // hidden ones too
            QVERIFY_BOTH(!first->isEnabled(), !table.getControlEnable());
            first->show();
            QCOMPARE(second->y(), 35);
            first->resize(80, 50);
            table.show();
            QCOMPARE(second->y(), 65);
            table.hide();
            QCOMPARE(table.getVisibleItems().size(), 2);
        }
    }

    void forgetsChildrenThatLeave()
    {
        WidgetTabel table;
        table.resize(100, 10);
        WidgetTabel other;
        QList<QWidget*> children;
        for (int i = 0; i < 5; ++i) {
            children.append(box({50, 20}));
            table.addWidget(children.last(), true);
        }
        table.addWidget(nullptr, true);
        table.addWidget(children[0], true);
        table.removeWidget(&other);
        QCOMPARE(table.items().size(), 5);

        table.removeWidget(children[0]);
        QVERIFY(children[0]->isHidden());
        QCOMPARE(children[0]->parentWidget(), &table);
        other.addWidget(children[1], true);
        delete children[2];
        QCOMPARE(table.items(), children.mid(3));
        QCOMPARE(table.height(), 65);

        const QPointer<QWidget> doomed(children[3]);
        children[3]->setObjectName("row");
        table.deleteAll();
        QVERIFY(table.isEmpty());
        QVERIFY(!table.findChild<QWidget*>("row"));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(!doomed);
    }

    void laysOutOnceForMany()
    {
        for (int count : {200, 800}) {
            WidgetTabel table;
            auto* probe = new Probe;
            for (int i = 0; i < count; ++i)
                table.addWidgetLayout(new WidgetTabel, false);
            table.addWidgetLayout(probe, false);
            QCOMPARE(probe->passes, 0);
            table.show();
            QCOMPARE(probe->passes, 1);
            table.hide();
            table.show();
            QCOMPARE(probe->passes, 1);
            {
                const LayoutPause pause(&table);
                const LayoutPause nested(&table);
                for (QWidget* row : table.items().mid(0, count))
                    row->hide();
                QCOMPARE(probe->passes, 1);
            }
            QCOMPARE(probe->passes, 2);
            QCOMPARE(probe->y(), 10);
            table.deleteAll();
            QCOMPARE(probe->passes, 2);
        }
    }

    void viewFollowsItsRows()
    {
        WidgetTabelView view;
        view.resize(200, 100);
        view.show();
        QCOMPARE(view.content()->size(), QSize(200, 100));
        auto* section = new WidgetTabel;
        view.addWidgetLayout(section);
        section->addWidget(box({50, 30}), true);
        section->items().first()->show();
        QCOMPARE(view.content()->size(), QSize(200, 50));
        QCOMPARE(section->geometry(), QRect(0, 0, 200, 50));
        QVERIFY(!view.verticalScrollBar()->isVisible());

        section->items().first()->setFixedHeight(300);
        QTRY_VERIFY_WITH_TIMEOUT(view.verticalScrollBar()->isVisible(), kTryFor);
        QCOMPARE(view.content()->size(), QSize(view.viewport()->width(), 320));
        QVERIFY(view.viewport()->width() < 200);
        view.resize(300, 400);
        QTRY_COMPARE_WITH_TIMEOUT(section->width(), 300, kTryFor);
        view.clearAll();
        QVERIFY(view.content()->isEmpty());
    }
};

QTEST_MAIN(TstWidgetTabel)
#include "tst_widgettabel.moc"
