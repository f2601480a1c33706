#include "Protocol/ruledata.h"
#include "bench/benchrow.h"
#include "bench/plainwidgets.h"
#include "bench/sampledocument.h"
#include "bench/samplepanel.h"
#include "tabel/drawitembutton.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <map>
#include <memory>

namespace
{

constexpr int kAttributes = 200;
constexpr int kMostAttributes = 992; // with the choices, near to what a section takes
constexpr int kEntries = 1000;
constexpr int kMostEntries = 3000;

std::unique_ptr<RuleParser> parse(const QString& templateText, int entries)
{
    auto parser = std::make_unique<RuleParser>();
    parser->parseTemplate(templateText);
    parser->readData(QString::fromUtf8(SampleDocument::rules(entries)));
    return parser;
}

/// Half as many entries as attributes.
const RuleParser& manyAttributes(int count)
{
    static std::map<int, std::unique_ptr<RuleParser>> made;
    std::unique_ptr<RuleParser>& parser = made[count];
    if (!parser)
        parser = parse(SampleDocument::panelTemplate(count), count / 2);
    return *parser;
}

void buildPanel(benchmark::State& state, int size)
{
    const RuleParser& parser = manyAttributes(size);
    for (auto _ : state) {
        auto panel = std::make_unique<SamplePanel>(parser);
        state.PauseTiming();
        panel.reset();
        state.ResumeTiming();
    }
}

void buildForm(benchmark::State& state, int size)
{
    const PanelRecipe recipe(SamplePanel(manyAttributes(size)).panel());
    for (auto _ : state) {
        auto widgets = std::make_unique<PlainWidgets>(recipe);
        state.PauseTiming();
        widgets.reset();
        state.ResumeTiming();
    }
}

struct PickFixture {
    explicit PickFixture(int entries)
        : parser(parse(SampleDocument::ruleTemplate(), entries)), panel(*parser)
    {
    }

    std::unique_ptr<RuleParser> parser;
    SamplePanel panel;
};

std::map<int, std::unique_ptr<PickFixture>>& pickFixtures()
{
    static std::map<int, std::unique_ptr<PickFixture>> made;
    return made;
}

PickFixture& manyEntries(int count)
{
    if (pickFixtures().empty())
        qAddPostRoutine([] { pickFixtures().clear(); }); // widgets go before the application
    std::unique_ptr<PickFixture>& fixture = pickFixtures()[count];
    if (!fixture)
        fixture = std::make_unique<PickFixture>(count);
    return *fixture;
}

void pickEntry(benchmark::State& state, int size)
{
    const SamplePanel& panel = manyEntries(size).panel;
    int step = 0;
    for (auto _ : state) {
        DrawItemButton* button = panel.entryButtons()[(step++ * 7 + 1) % size];
        button->click();
        if (panel.data().getSelectedDataId() != button->dataId())
            state.SkipWithError("the entry was not picked");
    }
}

/// As many texts and checked states as a pick shows, alternately of two values.
void setPlainWidgets(benchmark::State& state, int)
{
    const auto* controls =
        manyEntries(kEntries).panel.panel().findChild<QWidget*>(QStringLiteral("controls"));
    PlainWidgets widgets{PanelRecipe(*controls)};
    const QString texts[] = {QStringLiteral("Rule 17"), QStringLiteral("Rule 4")};
    int step = 0;
    for (auto _ : state) {
        ++step;
        for (QLineEdit* edit : widgets.edits())
            edit->setText(texts[step % 2]);
        for (QAbstractButton* button : widgets.buttons())
            button->setChecked(step % 2);
    }
}

} // namespace

void addPanelRows(BenchRows& rows)
{
    rows.push_back({"Panel", "the same widgets in a QFormLayout", 1.3, kAttributes, kMostAttributes,
                    buildPanel, buildForm});
    rows.push_back({"Select", "as many setText and setChecked", 3, kEntries, kMostEntries,
                    pickEntry, setPlainWidgets});
}
