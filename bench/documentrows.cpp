#include "Protocol/ruledata.h"
#include "Protocol/ruleparser.h"
#include "bench/benchrow.h"
#include "bench/sampledocument.h"

#include <QHash>
#include <QVariant>
#include <json/json.h>
#include <map>
#include <memory>
#include <rapidjson/document.h>
#include <vector>

namespace
{

constexpr int kRules = 3000; // the most that a scene may have

const QByteArray& configuration(int size)
{
    static std::map<int, QByteArray> made;
    QByteArray& text = made[size];
    if (text.isEmpty())
        text = SampleDocument::rules(size);
    return text;
}

const RuleParser& loaded(int size)
{
    static std::map<int, std::unique_ptr<RuleParser>> made;
    std::unique_ptr<RuleParser>& parser = made[size];
    if (!parser) {
        parser = std::make_unique<RuleParser>();
        parser->parseTemplate(SampleDocument::ruleTemplate());
        parser->readData(QString::fromUtf8(configuration(size)));
    }
    return *parser;
}

Json::Value parsedByJsonCpp(int size)
{
    const QByteArray& text = configuration(size);
    const std::unique_ptr<Json::CharReader> reader(Json::CharReaderBuilder().newCharReader());
    Json::Value root;
    reader->parse(text.constData(), text.constData() + text.size(), &root, nullptr);
    return root;
}

// Loading ends with letting go of what was read, on both sides.

void load(benchmark::State& state, int size)
{
    const QString templateText = SampleDocument::ruleTemplate();
    const QString text = QString::fromUtf8(configuration(size));
    for (auto _ : state) {
        RuleParser parser;
        if (!parser.parseTemplate(templateText) || !parser.readData(text) ||
            parser.getData(SceneType::Rules)->getDataCount() != size)
            state.SkipWithError("not all rules were read");
    }
}

void parseWithJsonCpp(benchmark::State& state, int size)
{
    configuration(size);
    for (auto _ : state) {
        if (int(parsedByJsonCpp(size)["Rules"].size()) != size)
            state.SkipWithError("not all rules were parsed");
    }
}

void parseWithRapidJson(benchmark::State& state, int size)
{
    const QByteArray& text = configuration(size);
    for (auto _ : state) {
        rapidjson::Document document;
        document.Parse(text.constData(), std::size_t(text.size()));
        if (document.HasParseError())
            state.SkipWithError("not parsed");
    }
}

void save(benchmark::State& state, int size)
{
    const RuleParser& parser = loaded(size);
    for (auto _ : state) {
        QString text;
        if (!parser.writeData(text) || text.isEmpty())
            state.SkipWithError("nothing was written");
    }
}

void writeWithJsonCpp(benchmark::State& state, int size)
{
    const Json::Value root = parsedByJsonCpp(size);
    for (auto _ : state)
        benchmark::DoNotOptimize(root.toStyledString());
}

void check(benchmark::State& state, int size)
{
    const RuleData& data = *loaded(size).getData(SceneType::Rules);
    for (auto _ : state) {
        QString message;
        if (!data.checkData(message))
            state.SkipWithError("the rules are not valid");
    }
}

void readFromHashes(benchmark::State& state, int size)
{
    const QStringList keys{QStringLiteral("name"),    QStringLiteral("region"),
                           QStringLiteral("action"),  QStringLiteral("shortest"),
                           QStringLiteral("longest"), QStringLiteral("confidence"),
                           QStringLiteral("size")};
    std::vector<QHash<QString, QVariant>> rules(static_cast<std::size_t>(size));
    for (auto& rule : rules) {
        for (const QString& key : keys)
            rule.insert(key, key.size());
    }
    for (auto _ : state) {
        int sum = 0;
        for (const auto& rule : rules) {
            for (const QString& key : keys)
                sum += rule.value(key).toInt();
        }
        benchmark::DoNotOptimize(sum);
    }
}

} // namespace

void addDocumentRows(BenchRows& rows)
{
    rows.push_back(
        {"Load", "jsoncpp parses the same text", 0.25, kRules, kRules, load, parseWithJsonCpp});
    rows.push_back(
        {"Load", "RapidJSON parses the same text", 4, kRules, kRules, load, parseWithRapidJson});
    rows.push_back(
        {"Save", "jsoncpp writes the same value", 0.6, kRules, kRules, save, writeWithJsonCpp});
    rows.push_back(
        {"Check", "reading every value from a QHash", 5, kRules, kRules, check, readFromHashes});
}
