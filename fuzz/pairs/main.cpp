// Loads made pairs of documents, picks every entry of every scene and saves. Exit status 1: a
// document was saved as something else than it should be; both are on the standard error stream.
#include "Protocol/ruledata.h"
#include "Protocol/ruleparser.h"
#include "draw/drawitem.h"
#include "draw/drawscene.h"
#include "fuzz/pairs/expecteddocument.h"
#include "fuzz/pairs/pairmaker.h"
#include "scene/basetabelscene.h"
#include "scene/scenefactory.h"
#include "tabel/drawitembutton.h"
#include "tabel/widgettabelview.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTextStream>
#include <algorithm>

using kql::Json::Value;

namespace
{

/// The panels of all scenes, as in the rules window.
class Panels
{
public:
    explicit Panels(const RuleParser& parser)
    {
        for (const auto& data : parser.getAllData()) {
            BaseTabelScene* panel = createScene(data->getSceneType(), m_view.content());
            panel->setRuleData(data.get());
            m_view.addWidgetLayout(panel);
            data->getDrawScene()->setCanvasSize(800, 450);
            panel->setSelected(true);
            m_panels.append(panel);
        }
        m_view.show();
    }
    ~Panels()
    {
        for (BaseTabelScene* panel : qAsConst(m_panels))
            panel->setRuleData(nullptr);
    }

    /// Takes back the figures that picking started: without points they would be saved as none.
    void dropStarted()
    {
        for (BaseTabelScene* panel : qAsConst(m_panels)) {
            DrawScene& canvas = *panel->ruleData()->getDrawScene();
            for (const DrawItem* figure : canvas.getItemList(BaseDrawType::None, -1)) {
                if (!figure->isFinished() && figure->getPoints().isEmpty())
                    canvas.removeItem(figure->itemId());
            }
        }
    }

    void pickAll()
    {
        for (BaseTabelScene* panel : qAsConst(m_panels)) {
            const DrawScene& canvas = *panel->ruleData()->getDrawScene();
            auto buttons = panel->findChild<QWidget*>("drawItems")->findChildren<DrawItemButton*>();
            // What starts a figure by being picked locks the other buttons, and so goes last.
            std::stable_sort(buttons.begin(), buttons.end(),
                             [&](const auto* one, const auto* other) {
                                 return canvas.getItemListByDataId(one->dataId()).size() >
                                        canvas.getItemListByDataId(other->dataId()).size();
                             });
            QVector<int> ids;
            for (const DrawItemButton* button : qAsConst(buttons))
                ids.append(button->dataId());
            for (const int id : qAsConst(ids))
                pick(*panel, id);
            panel->finishEdits();
        }
    }

private:
    static void pick(BaseTabelScene& panel, int dataId)
    {
        const auto buttons =
            panel.findChild<QWidget*>("drawItems")->findChildren<DrawItemButton*>();
        for (DrawItemButton* button : buttons) {
            if (button->dataId() == dataId)
                return button->click();
        }
    }

    WidgetTabelView m_view;
    QList<BaseTabelScene*> m_panels;
};

/// Empty when the pair is saved as it should be, else what came out instead.
QString complaint(const PairMaker& pair, bool conforming)
{
    RuleParser parser;
    if (!parser.parseTemplate(pair.templateDocument.toStyledText()) ||
        !parser.readData(pair.config.toStyledText()))
        return QStringLiteral("not read");
    parser.findLosses();
    Value written;
    {
        Panels panels(parser);
        panels.pickAll();
        panels.dropStarted();
        if (!parser.writeData(written))
            return QStringLiteral("not written");
    }
    const Value expected = ExpectedDocument::of(pair);
    if (!ExpectedDocument::isSame(written, expected))
        return written.toCompactText() + "\nin place of\n" + expected.toCompactText();
    const QStringList notices = parser.notices();
    return conforming && !notices.isEmpty() ? notices.join('\n') : QString();
}

} // namespace

int main(int argc, char* argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QCommandLineParser options;
    options.addHelpOption();
    options.addOptions({{"count", "pairs of each kind", "number", "300"},
                        {"first", "the first pair's seed", "number", "1"}});
    options.process(application);
    const unsigned first = options.value("first").toUInt();
    const unsigned count = options.value("count").toUInt();
    for (const bool conforming : {true, false}) {
        for (unsigned seed = first; seed < first + count; ++seed) {
            const PairMaker pair(seed, conforming);
            const QString wrong = complaint(pair, conforming);
            if (wrong.isEmpty())
                continue;
            QTextStream(stderr) << (conforming ? "conforming" : "other") << " pair " << seed << '\n'
                                << pair.templateDocument.toCompactText() << '\n'
                                << pair.config.toCompactText() << "\nis saved as\n"
                                << wrong << '\n';
            return 1;
        }
    }
    QTextStream(stdout) << 2 * count << " pairs are saved as they should be\n";
    return 0;
}
