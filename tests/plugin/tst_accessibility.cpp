#include "fuzz/onepicture.h"
#include "host/video/channelsources.h"
#include "plugin/modulelifetime.h"
#include "scene/basetabelscene.h"
#include "tabel/drawitembutton.h"
#include "tests/support/examplefiles.h"
#include "tests/support/rulestest.h"
#include "tests/support/ruleswindow.h"
#include "tests/support/sampledocuments.h"

#include <cmath>

namespace
{

double luminance(QRgb colour)
{
    const auto linear = [](int part) {
        const double share = part / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) +
           0.0722 * linear(qBlue(colour));
}

double contrast(QRgb one, QRgb other)
{
    if (one == other)
        return 1;
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return qMax(first, second) / qMin(first, second);
}

/// A window that shows an example, with its skin.
struct ExampleWindow : RulesWindow {
    explicit ExampleWindow(const QString& example)
    {
        const QString folder = ExampleFiles::folder(example);
        QApplication::setActiveWindow(window);
        window->setData(SampleDocuments::block(R"("channalId": "C7")",
                                               ExampleFiles::contentOf(folder + "config.json"),
                                               ExampleFiles::contentOf(folder + "template.json")),
                        1);
        QCoreApplication::processEvents();
    }

    QImage picture(const QRect& part) const
    {
        return window->grab(part).toImage().convertToFormat(QImage::Format_RGB32);
    }
    /// How many pixels in and around @p control tell at 3:1 that it has the focus, which it has.
    int telling(const QWidget& control) const
    {
        const QRect place = QRect(control.mapTo(window, QPoint()), control.size());
        const QRect seen = place.adjusted(-4, -4, 4, 4) & window->rect();
        const QImage focused = picture(seen);
        window->setFocus();
        const QImage other = picture(seen);
        int count = 0;
        for (int y = 0; y < focused.height(); ++y) {
            for (int x = 0; x < focused.width(); ++x)
                count += contrast(focused.pixel(x, y), other.pixel(x, y)) >= 3;
        }
        return count;
    }
    /// Where Tab, or Shift+Tab, leads to from the focus now, once around.
    template<class Look>
    void goAround(Qt::Key key, const Look& look) const
    {
        QTest::keyClick(QApplication::focusWidget(), key);
        QSet<QWidget*> seen;
        for (QWidget* stop = QApplication::focusWidget(); !seen.contains(stop);
             stop = QApplication::focusWidget()) {
            seen.insert(stop);
            look(*stop);
            stop->setFocus(Qt::TabFocusReason);
            QTest::keyClick(stop, key);
        }
    }
};

QString nameOf(const QWidget& widget)
{
    return QString("%1 %2 (%3)")
        .arg(widget.metaObject()->className(), widget.objectName(),
             QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget))
                 ->text(QAccessible::Name));
}

} // namespace

/// What an operator without a mouse, or who does not see the screen, is told in each example.
class TstAccessibility : public RulesTest
{
    Q_OBJECT

    void prepare() override
    {
        IntelligentRulesUI::startModule();
        auto& sources = KQGUI::KQSingleton<UICommonMdl::ChannelSources>::Instance();
        sources.addMaker([](const QString&, const auto&...) {
            return std::make_unique<OnePicture>(QSize(640, 360));
        });
        sources.setDefaultAddress("grey:");
    }

    static void addExamples()
    {
        QTest::addColumn<QString>("example");
        for (const QString& name : ExampleFiles::names())
            QTest::newRow(qPrintable(name)) << name;
    }

private slots:
    void tellsWhatControlsAre_data() { addExamples(); }

    void tellsWhatControlsAre()
    {
        QFETCH(const QString, example);
        const ExampleWindow desk(example);
        for (QWidget* widget : desk.window->findChildren<QWidget*>()) {
            const bool isFocused = widget->focusPolicy() != Qt::NoFocus || widget->hasFocus();
            if (!isFocused || !widget->isVisible())
                continue;
            const auto& told = *QAccessible::queryAccessibleInterface(widget);
            const QString name = told.text(QAccessible::Name);
            const bool isNamed = !name.isEmpty() && !name.contains("...");
            QVERIFY2(isNamed, widget->metaObject()->className());
            QVERIFY2(told.role() != QAccessible::Client, qPrintable(nameOf(*widget)));
            if (const auto* button = qobject_cast<DrawItemButton*>(widget)) {
                QCOMPARE(name, button->fullText());
                QCOMPARE(bool(told.state().checked), button->isChecked());
            }
        }
    }

    void showsTheFocus_data() { addExamples(); }

    /// Wherever Tab leads, which is everywhere, both ways.
    void showsTheFocus()
    {
        QFETCH(const QString, example);
        const ExampleWindow desk(example);
        const QWidget& first = *QApplication::focusWidget();
        // On its title bar.
        QVERIFY(desk.telling(first) >= first.width() + desk.find("titleBar")->height());
        desk.find("btnCancel")->setFocus(Qt::TabFocusReason);
        for (const auto& [key, isFolded] :
             {std::pair(Qt::Key_Tab, false), std::pair(Qt::Key_Backtab, false),
              std::pair(Qt::Key_Backtab, true)}) {
            int stops = 0;
            for (BaseTabelScene* panel : desk.window->findChildren<BaseTabelScene*>())
                panel->setFold(isFolded);
            desk.goAround(key, [&](const QWidget& stop) {
                QVERIFY2(stop.visibleRegion().boundingRect() == stop.rect(),
                         qPrintable(nameOf(stop)));
                QVERIFY2(desk.telling(stop) >= stop.width() + stop.height(),
                         qPrintable(nameOf(stop)));
                ++stops;
            });
            QVERIFY(stops > 8);
        }
    }
};

QTEST_MAIN(TstAccessibility)

#include "tst_accessibility.moc"
