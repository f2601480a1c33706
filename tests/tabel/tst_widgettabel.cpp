#include "tabel/layouthold.h"
#include "tabel/titlelabel.h"
#include "tabel/widgettabel.h"
#include "tabel/widgettabelview.h"
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
        texts.append(
            QStringLiteral("%1,%2 %3x%4").arg(r.x()).arg(r.y()).arg(r.width()).arg(r.height()));
    }
    return texts.join(QStringLiteral("; "));
}

} // namespace

class TstWidgetTabel : public RulesTest
{
    Q_OBJECT

private slots:
    void places()
    {
        // A table of that set-up, its children's sizes, where they and its bottom edge come to be.
        const auto check = [](const char* name, ItemSizeType type, const QSize& limits, int width,
                              const QList<QSize>& sizes, const char* expected, int height) {
            WidgetTabel table;
            table.setItemType(type);
            table.setFixCountLimit(limits.width(), limits.height());
            table.resize(width, 77);
            for (const QSize& size : sizes)
                table.addWidget(box(size), false);
            table.relayout(0, 0);
            QVERIFY2(placements(table) == expected, qPrintable(name + (": " + placements(table))));
            QCOMPARE(table.size(), QSize(width, height));
            // The same again, shown: what children do on the way changes nothing.
            table.show();
            table.relayout(0, 0);
            QCOMPARE(placements(table), QLatin1String(expected));
        };
        const auto count = ItemSizeType::ItemFixCount;
        const auto flow = ItemSizeType::ItemFlow;
        const auto cells = ItemSizeType::ItemFixSize;
        const QSize s(50, 20);
        const char* twoCells = "10,10 70x30; 85,10 70x30; 10,45 70x30";
        const QList<QSize> three{s, s, s};
        const QList<QSize> four{s, s, s, s};
        const QList<QSize> uneven{s, {50, 30}, s};
        const QList<QSize> wide{{60, 20}, {60, 30}, {60, 20}, {60, 10}};
        check("one column", count, {1, 1}, 300, {{50, 30}, {50, 40}}, "10,10 280x30; 10,45 280x40",
              95);
        check("columns step down, a short last row adds nothing", count, {1, 2}, 225, uneven,
              "10,10 100x20; 115,15 100x30; 10,50 100x20", 60);
        check("no columns", count, {1, 0}, 300, {s, s}, "0,0 50x20; 0,0 50x20", 77);
        check("negative width", count, {1, 1}, 15, {s, {60, 20}}, "10,10 50x20; 10,35 50x20", 65);
        check("flow wraps at the edge", flow, {1, 10}, 200, wide,
              "10,10 60x20; 75,10 60x30; 10,15 60x20; 75,15 60x10", 45);
        check("flow fits to the pixel before the edge", flow, {1, 10}, 201, wide,
              "10,10 60x20; 75,10 60x30; 140,10 60x20; 10,15 60x10", 35);
        check("flow wraps by count", flow, {1, 2}, 400, four,
              "10,10 50x20; 65,10 50x20; 10,30 50x20; 65,30 50x20", 60);
        check("cells", cells, {1, 5}, 241, four,
              "10,10 70x30; 85,10 70x30; 160,10 70x30; 10,45 70x30", 85);
        check("cells at the exact width", cells, {1, 5}, 240, three, twoCells, 85);
        check("cells up to the maximum", cells, {1, 2}, 900, three, twoCells, 85);
        check("cells down to the minimum", cells, {2, 5}, 30, three, twoCells, 85);
        check("nothing", count, {1, 1}, 300, {}, "", 77);
    }

    void placesTheTitle()
    {
        const QString caption = QStringLiteral("A caption longer than its <b>place</b>");
        WidgetTabel table;
        table.resize(300, 77);
        table.setTitle(QString());
        QVERIFY(table.titleLabel()->isHidden());
        table.setTitle(caption);
        QCOMPARE(table.height(), 50);
        QCOMPARE(table.titleLabel()->geometry(), QRect(10, 10, 80, 30));
        table.addWidget(box({50, 40}), true);
        QCOMPARE(placements(table), QStringLiteral("95,10 195x40"));
        QCOMPARE(table.titleLabel()->geometry(), QRect(10, 15, 80, 30));

        QCOMPARE(table.titleLabel()->text(), caption);
        QVERIFY(table.titleLabel()->isElided());
        QVERIFY(table.titleLabel()->toolTip().contains(QStringLiteral("&lt;b&gt;")));
        table.setTitle(QString());
        QVERIFY(!table.titleLabel()->isHidden());
        QCOMPARE(placements(table), QStringLiteral("10,10 280x40"));
        // A start that is given holds for this layout only.
        table.relayout(40, 20);
        QCOMPARE(placements(table), QStringLiteral("40,20 250x40"));
        table.relayout(0, 0);
        QCOMPARE(placements(table), QStringLiteral("10,10 280x40"));
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
            QVERIFY(!first->isEnabled() && !table.getControlEnable());
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
        children[3]->setObjectName(QStringLiteral("row"));
        table.deleteAll();
        QVERIFY(table.isEmpty());
        QVERIFY(!table.findChild<QWidget*>(QStringLiteral("row")));
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
                const LayoutHold hold(&table);
                const LayoutHold nested(&table);
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
