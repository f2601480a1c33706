#include "tests/support/rulestest.h"
#include "tests/support/workbenchbench.h"
#include "workbench/language.h"
#include "workbench/windowplace.h"

namespace
{

// What is left of the smallest screen beside a title bar and a frame.
constexpr QSize kSmallest(1272, 676);

/// The text of a label or a button, and a way to give it another one.
struct Shown {
    QString text;
    int room = 0;
    std::function<void(const QString&)> set;
};

QStyle::SubElement contentsOf(const QAbstractButton& button)
{
    if (qobject_cast<const QCheckBox*>(&button))
        return QStyle::SE_CheckBoxContents;
    return qobject_cast<const QRadioButton*>(&button) ? QStyle::SE_RadioButtonContents
                                                      : QStyle::SE_PushButtonContents;
}

Shown shownBy(QWidget* widget)
{
    if (auto* label = qobject_cast<QLabel*>(widget))
        return {label->text(), label->contentsRect().width(),
                [label](const QString& text) { label->setText(text); }};
    auto* const button = qobject_cast<QAbstractButton*>(widget);
    if (!button || qobject_cast<QToolButton*>(widget))
        return {};
    QStyleOptionButton look;
    look.initFrom(button);
    const QRect contents = button->style()->subElementRect(contentsOf(*button), &look, button);
    return {button->text(), contents.width(),
            [button](const QString& text) { button->setText(text); }};
}

QString tipOf(QWidget* widget)
{
    // What is behind a text that lets the pointer through answers for it.
    QWidget* const asked =
        widget->testAttribute(Qt::WA_TransparentForMouseEvents) ? widget->parentWidget() : widget;
    const QPoint at = widget->rect().center();
    QToolTip::showText(QPoint(), QString());
    QHelpEvent event(QEvent::ToolTip, widget->mapTo(asked, at), widget->mapToGlobal(at));
    QApplication::sendEvent(asked, &event);
    return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
}

/// What is wrong with the text of @p widget; empty when it is whole, or elided with a tip.
QString faultOf(QWidget* widget)
{
    const Shown shown = shownBy(widget);
    const QFontMetrics metrics = widget->fontMetrics();
    const auto* const label = qobject_cast<QLabel*>(widget);
    if (shown.text.isEmpty() || (label && label->wordWrap()))
        return {};
    // What names an entry may be the beginning of its name already.
    QString text = shown.text;
    text.remove("...");
    // A button's edges take a line each; a line of another script is up to as tall.
    const bool isButton = qobject_cast<QPushButton*>(widget);
    const int tall =
        isButton ? metrics.height() + 2 : metrics.tightBoundingRect(shown.text).height();
    if (tall > widget->height())
        return "is too tall";
    const QString fitting =
        metrics.elidedText(shown.text, Qt::ElideRight, shown.room, Qt::TextShowMnemonic);
    if (fitting == shown.text)
        return {};
    const QImage before = widget->grab().toImage();
    shown.set(fitting);
    const bool isElided = widget->grab().toImage() == before;
    shown.set(shown.text);
    if (!isElided)
        return "is cut off";
    const QString tip = tipOf(widget);
    return tip.contains(text) ? QString() : "is elided, and its tip is " + tip;
}

QRect placeIn(const QWidget& window, const QWidget* part)
{
    return {part->mapTo(&window, QPoint()), part->size()};
}

} // namespace

/// Looks for texts that are cut off, and for what has no room on a small screen.
class TstCutOff : public RulesTest
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        QLocale::setDefault(QLocale::c());
        QApplication::setFont(m_usualFont);
    }

    void textsAreWhole_data()
    {
        QTest::addColumn<QString>("example");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<int>("points");
        for (const QString& example : ExampleFiles::names()) {
            for (const QString locale : {"en", "de", "zh_CN"}) {
                for (const int points : {9, 16})
                    QTest::addRow("%s, %s, %d points", qPrintable(example), qPrintable(locale),
                                  points)
                        << example << locale << points;
            }
        }
    }

    void textsAreWhole()
    {
        QFETCH(const QString, example);
        QFETCH(const QString, locale);
        QFETCH(const int, points);
        QFont font = m_usualFont;
        font.setPointSize(points);
        QApplication::setFont(font);
        QLocale::setDefault(QLocale(locale));
        const Language language;
        WorkbenchWindow window(WorkbenchBench::example(example));
        QString error;
        QVERIFY2(window.start(error), qPrintable(error));
        window.resize(kSmallest);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCoreApplication::processEvents();
        int count = 0;
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (!widget->isVisible())
                continue;
            const QString fault = faultOf(widget);
            QVERIFY2(fault.isEmpty(), qPrintable(widget->objectName() + " \"" +
                                                 shownBy(widget).text + "\" " + fault));
            count += !shownBy(widget).text.isEmpty();
        }
        QVERIFY(count > 10);
        for (const char* answer : {"btnSave", "btnCancel"}) {
            auto* const button = window.findChild<QPushButton*>(answer);
            QVERIFY(window.rect().contains(placeIn(window, button)));
            if (points == 9)
                QVERIFY2(shownBy(button).room >=
                             button->fontMetrics().horizontalAdvance(button->text()),
                         qPrintable(button->text()));
        }
        QVERIFY(window.rect().contains(placeIn(window, window.statusBar())));
        QCOMPARE(window.size(), kSmallest);
    }

    void contentIsAsWideAsItsView()
    {
        WorkbenchWindow window(WorkbenchBench::example("perimeter"));
        QString error;
        QVERIFY2(window.start(error), qPrintable(error));
        window.resize(kSmallest);
        window.show();
        const auto* const view = window.findChild<QScrollArea*>("sceneView");
        for (const char* example : {"perimeter", "fight-calibration", "traffic", "traffic"}) {
            QVERIFY2(window.load(WorkbenchBench::example(example), error), qPrintable(error));
            QTRY_COMPARE(view->widget()->width(), view->viewport()->width());
            const bool isLong = view->widget()->height() > view->viewport()->height();
            QCOMPARE(view->viewport()->width() < view->width(), isLong);
        }
    }

    void windowComesBackWhereItWas()
    {
        const QRect small = WindowPlace::within(QRect(10, 20, 1280, 680), QSize(1180, 800));
        QVERIFY(QRect(10, 20, 1280, 680).contains(small));
        QCOMPARE(small.width(), 1180);
        QTemporaryDir folder;
        const QString file = folder.filePath("window.ini");
        const QRect place(30, 50, 500, 400);
        QWidget left;
        left.setGeometry(place);
        WindowPlace::keep(left, file);
        QWidget found;
        WindowPlace::restore(found, file);
        QCOMPARE(found.geometry(), place);
        // The screen got smaller since, by less than Qt minds.
        const QRect screen = left.screen()->availableGeometry();
        left.setGeometry(screen.adjusted(screen.width() / 2, screen.height() / 2, 60, 60));
        WindowPlace::keep(left, file);
        QWidget moved;
        WindowPlace::restore(moved, file);
        QVERIFY(screen.contains(moved.geometry()));
        QCOMPARE(moved.size(), left.size());
        QFile broken(file);
        QVERIFY(broken.open(QIODevice::WriteOnly) && broken.write("[General]\ngeometry=no") > 0);
        broken.close();
        QWidget anew;
        anew.resize(5000, 5000);
        WindowPlace::restore(anew, file);
        QVERIFY(anew.screen()->availableGeometry().contains(anew.geometry()));
    }

private:
    const QFont m_usualFont = QApplication::font();
};

QTEST_MAIN(TstCutOff)
#include "tst_cutoff.moc"
