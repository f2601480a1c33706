#include "host/api/rowcontract.h"
#include "plugin/cintelligentrulesctrl.h"
#include "tests/support/contrast.h"
#include "tests/support/rulestest.h"
#include "tests/support/workbenchbench.h"
#include "workbench/theme.h"

#include <functional>

namespace
{

/// Of its own look, which the skin does not touch.
constexpr char kExempt[] = "btnSave";

QRgb groundOf(const QImage& image, const QRect& area)
{
    QHash<QRgb, int> counts;
    for (int i = 0; i < area.width() * area.height(); ++i)
        ++counts[image.pixel(area.x() + i % area.width(), area.y() + i / area.width())];
    const auto most = std::max_element(counts.begin(), counts.end());
    return most == counts.end() ? 0 : most.key();
}

/// What is written or drawn in @p area to what it stands on.
double inkRatio(const QImage& image, const QRect& area)
{
    const QRgb ground = groundOf(image, area);
    double best = 1;
    for (int i = 0; i < area.width() * area.height(); ++i)
        best = qMax(best, Contrast::ratio(ground, image.pixel(area.x() + i % area.width(),
                                                              area.y() + i / area.width())));
    return best;
}

/// The right edge of @p area to what lies beside it.
double edgeRatio(const QImage& image, const QRect& area)
{
    const int y = area.center().y();
    const QRgb beside = image.pixel(qMin(image.width() - 1, area.right() + 2), y);
    double best = 1;
    for (int x = area.right(); x > area.right() - 4; --x)
        best = qMax(best, Contrast::ratio(beside, image.pixel(x, y)));
    return best;
}

/// Tells of all that is seen of a window what cannot be told from its ground.
class Reader
{
public:
    Reader(QWidget& top, const QString& where)
        : m_top(top), m_where(where), m_image(top.grab().toImage())
    {
    }

    QStringList read()
    {
        for (const QWidget* widget : m_top.findChildren<QWidget*>()) {
            const bool isWhole =
                widget->isVisible() && widget->visibleRegion().boundingRect() == widget->rect();
            const auto* surface = m_top.findChild<QRtspVideoWnd*>();
            if (isWhole && widget->objectName() != kExempt &&
                !(surface && surface->isAncestorOf(widget)))
                read(*widget);
        }
        return m_faults;
    }

    int count() const { return m_count; }

private:
    void read(const QWidget& widget)
    {
        const QRect area = placeOf(widget, widget.rect());
        if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
            if (!label->text().isEmpty())
                expect(widget, "text", inkRatio(m_image, area), Contrast::kTexts);
        } else if (qobject_cast<const QLineEdit*>(&widget)) {
            expect(widget, "edge", edgeRatio(m_image, area), Contrast::kMarks);
            readText(widget, area.adjusted(7, 4, -area.width() / 2, -4));
        } else if (const auto* push = qobject_cast<const QPushButton*>(&widget)) {
            expect(widget, "edge", edgeRatio(m_image, area), Contrast::kMarks);
            if (!push->text().isEmpty()) // right of the box or the sign that it may have
                expect(widget, "text",
                       inkRatio(m_image, area.adjusted(area.width() / 4, 4, -6, -4)),
                       Contrast::kTexts);
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
            readOption(*button);
        } else if (widget.inherits("SceneTitleBar")) {
            expect(widget, "edge", edgeRatio(m_image, area), Contrast::kMarks);
        } else if (widget.inherits("QScrollBar") || widget.inherits("FoldArrow")) {
            expect(widget, "mark", inkRatio(m_image, area), Contrast::kMarks);
        }
    }

    void readText(const QWidget& edit, const QRect& area)
    {
        if (!static_cast<const QLineEdit&>(edit).text().isEmpty())
            expect(edit, "text", inkRatio(m_image, area), Contrast::kTexts);
    }

    /// A mark, its edge, and the text beside it.
    void readOption(const QAbstractButton& button)
    {
        QStyleOptionButton look;
        look.initFrom(&button);
        const bool isBox = qobject_cast<const QCheckBox*>(&button);
        const auto* style = button.style();
        const QRect mark = style->subElementRect(
            isBox ? QStyle::SE_CheckBoxIndicator : QStyle::SE_RadioButtonIndicator, &look, &button);
        const QRect text = style->subElementRect(
            isBox ? QStyle::SE_CheckBoxContents : QStyle::SE_RadioButtonContents, &look, &button);
        expect(button, "edge", edgeRatio(m_image, placeOf(button, mark)), Contrast::kMarks);
        if (button.isChecked())
            expect(button, "mark", inkRatio(m_image, placeOf(button, mark.adjusted(2, 2, -2, -2))),
                   Contrast::kMarks);
        if (!button.text().isEmpty())
            expect(button, "text", inkRatio(m_image, placeOf(button, text)), Contrast::kTexts);
    }

    QRect placeOf(const QWidget& widget, const QRect& area) const
    {
        return area.translated(widget.mapTo(&m_top, QPoint())).intersected(m_image.rect());
    }

    void expect(const QWidget& widget, const char* what, double ratio, double least)
    {
        ++m_count;
        if (ratio < least)
            m_faults.append(QString("%1: %2 of %3 %4 %5")
                                .arg(m_where, QLatin1String(what))
                                .arg(widget.metaObject()->className(), widget.objectName())
                                .arg(ratio, 0, 'f', 2));
    }

    QWidget& m_top;
    QString m_where;
    QImage m_image;
    QStringList m_faults;
    int m_count = 0;
};

/// Of the menu that comes up by right of @p widget's own.
QStringList readMenu(QWidget& widget)
{
    QStringList faults;
    int count = 0;
    QTimer::singleShot(50, &widget, [&] {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (!menu)
            return;
        const QImage image = menu->grab().toImage();
        for (QAction* action : menu->actions()) {
            if (action->isSeparator())
                continue;
            ++count;
            const double ratio =
                inkRatio(image, menu->actionGeometry(action).adjusted(4, 0, -4, 0));
            if (ratio < Contrast::kTexts)
                faults.append(QString("menu: %1 %2").arg(action->text()).arg(ratio, 0, 'f', 2));
        }
        menu->close();
    });
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, widget.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&widget, &event);
    return QTest::qWaitFor([&] { return count > 2; }) ? faults : QStringList("no menu");
}

} // namespace

class TstContrast : public RulesTest
{
    Q_OBJECT

    QPalette m_desktop = QApplication::palette();

private slots:
    void cleanup() { QApplication::setPalette(m_desktop); }

    void sections_data()
    {
        QTest::addColumn<QString>("example");
        QTest::addColumn<bool>("dark");
        QTest::addColumn<int>("mode");
        const QStringList modes{"edited", "read only", "selecting"};
        for (const QString& example : ExampleFiles::names()) {
            for (const bool dark : {false, true}) {
                for (int mode = 0; mode < modes.size(); ++mode)
                    QTest::addRow("%s, %s, %s", qPrintable(example), dark ? "dark" : "light",
                                  qPrintable(modes[mode]))
                        << example << dark << mode;
            }
        }
    }

    /// The section that is worked on, then the same one under its mask, and what is beside them.
    void sections()
    {
        QFETCH(const QString, example);
        QFETCH(const bool, dark);
        QFETCH(const int, mode);
        QApplication::setPalette(Theme::palette(dark));
        WorkbenchOptions options = WorkbenchBench::example(example);
        options.selectionMode = mode == 2;
        if (mode == 1)
            options.editable = false;
        WorkbenchBench bench(options);
        QVERIFY(bench.isReady());
        bench.window().resize(1200, 2400);
        QWidget& window = *bench.window().rulesWindow();
        QStringList faults;
        for (const bool isSelected : {true, false}) {
            for (QWidget* section : window.findChildren<QWidget*>()) {
                if (section->inherits("SceneSection"))
                    QMetaObject::invokeMethod(section, "sgnTrySelectedlScene");
                if (isSelected && section->inherits("SceneSection"))
                    break;
            }
            QCoreApplication::processEvents();
            Reader reader(window, isSelected ? "selected" : "masked");
            faults += reader.read();
            QVERIFY(reader.count() > 10);
        }
        QCOMPARE(faults.join('\n'), QString());
    }

    void menusAndBoxes_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }

    void menusAndBoxes()
    {
        QFETCH(const bool, dark);
        QApplication::setPalette(Theme::palette(dark));
        WorkbenchBench bench(WorkbenchBench::example());
        QVERIFY(bench.isReady());
        QWidget& window = *bench.window().rulesWindow();
        auto* const entry = window.findChild<QWidget*>(RowContract::kEntries);
        QStringList faults = readMenu(*entry->findChild<QPushButton*>());
        faults += readMenu(*window.findChild<QLineEdit*>(RowContract::kEdit));
        int boxes = 0;
        QTimer::singleShot(100, &window, [&] {
            QWidget* const box = QApplication::activeModalWidget();
            if (!box)
                return;
            Reader reader(*box, "box");
            faults += reader.read();
            boxes += reader.count() > 2 ? 1 : 0;
            box->close();
        });
        QTest::keyClick(&window, Qt::Key_F1);
        QCOMPARE(boxes, 1);
        QCOMPARE(faults.join('\n'), QString());
    }

    /// Of the desktop, and of a client's own window.
    void followsTheDesktop()
    {
        QApplication::setPalette(Theme::palette(false));
        WorkbenchBench bench(WorkbenchBench::example());
        QVERIFY(bench.isReady());
        QWidget& window = *bench.window().rulesWindow();
        const auto isDark = [&] {
            const QRect bar = window.findChild<QWidget*>("widget")->geometry();
            const QRgb ground = groundOf(window.grab().toImage(), bar);
            return Contrast::luminance(ground) < 0.1;
        };
        QVERIFY(!isDark());
        for (const bool dark : {true, false, true}) {
            QApplication::setPalette(Theme::palette(dark));
            QTRY_COMPARE(isDark(), dark); // Qt 6 tells of it later
            QCOMPARE(Reader(window, "followed").read().join('\n'), QString());
        }
        bench.window().setPalette(Theme::palette(false));
        QVERIFY(!isDark());
    }

    /// A client's own skin without a sheet for dark desktops is that sheet, and nothing besides.
    void keepsToTheSkinThatIsChosen()
    {
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkpath("IntelligentRulesUI"));
        const QString path = folder.filePath("IntelligentRulesUI/IntelligentRulesCtrl%1.qss");
        const auto write = [&path](const QString& suffix, const QByteArray& text) {
            QFile sheet(path.arg(suffix));
            QVERIFY(sheet.open(QIODevice::WriteOnly));
            sheet.write(text);
        };
        write("", "QLabel { color: #123456; }");
        qputenv("KQ_SKIN_DIR", folder.path().toUtf8());
        QApplication::setPalette(Theme::palette(true));
        const auto sheet = [] {
            const IntelligentRulesUI::CIntelligentRulesCtrl window("W1");
            return window.styleSheet();
        };
        QCOMPARE(sheet(), QString("QLabel { color: #123456; }"));
        write("Dark", "QLabel { color: #FEDCBA; }");
        QVERIFY(sheet().endsWith("QLabel { color: #FEDCBA; }"));
        qunsetenv("KQ_SKIN_DIR");
    }

    /// Everything that has a colour has one in both.
    void skinsGoTogether()
    {
        const auto colored = [](const QString& name) {
            QString text = ExampleFiles::contentOf(RULES_SOURCE_DIR "/skin/IntelligentRulesUI/" +
                                                   name + ".qss");
            text.remove(
                QRegularExpression("/\\*.*?\\*/", QRegularExpression::DotMatchesEverythingOption));
            QSet<QString> found;
            QRegularExpression rule("([^{}]+)\\{([^}]*)\\}");
            for (auto rules = rule.globalMatch(text); rules.hasNext();) {
                const QRegularExpressionMatch match = rules.next();
                for (const QString& declaration : match.captured(2).split(';')) {
                    if (!declaration.contains(QRegularExpression("#[0-9A-F]{6}|rgba\\(")))
                        continue;
                    const QString property = declaration.section(':', 0, 0).trimmed();
                    for (const QString& selector : match.captured(1).split(','))
                        found.insert(selector.simplified() + ' ' + property.section('-', 0, 0));
                }
            }
            return found;
        };
        const QSet<QString> light = colored("IntelligentRulesCtrl");
        QVERIFY(light.size() > 50);
        QCOMPARE(QStringList((light - colored("IntelligentRulesCtrlDark")).values()).join('\n'),
                 QString());
    }
};

QTEST_MAIN(TstContrast)
#include "tst_contrast.moc"
