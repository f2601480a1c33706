#include "bench/benchrow.h"
#include "bench/fleetfiles.h"
#include "host/json/reader.h"
#include "tools/rulesctl/documents/templatedocument.h"
#include "tools/rulesctl/pages/fleetpage.h"
#include "tools/rulesctl/report/cameracard.h"

#include <QFile>
using kql::Json::Value;

namespace
{

constexpr int kCameras = 5000;

Value read(const QString& path)
{
    QFile file(path);
    Value value;
    if (file.open(QIODevice::ReadOnly))
        kql::Json::Reader().parse(QString::fromUtf8(file.readAll()), value);
    return value;
}

void makePage(benchmark::State& state, int size, CardMaker::Pictures pictures)
{
    const QString file = FleetFiles::templateFile();
    const TemplateDocument perimeter{file, read(file), {}};
    static const FleetFiles fleet(FleetFiles::Form::Compact, kCameras);
    for (auto _ : state) {
        CardMaker maker(perimeter, pictures);
        std::vector<QByteArray> cards;
        for (int i = 0; i < size; ++i)
            cards.push_back(maker.make(fleet.path(i)).html);
        const QByteArray page = FleetPage::of(file, {size, 0, 0}, cards);
        benchmark::DoNotOptimize(page.size());
    }
}

} // namespace

void addReportRow(BenchRows& rows)
{
    rows.push_back({"Report", "the same cards without their pictures", 3, kCameras, 0,
                    [](benchmark::State& state, int size) {
                        makePage(state, size, CardMaker::Pictures::Shown);
                    },
                    [](benchmark::State& state, int size) {
                        makePage(state, size, CardMaker::Pictures::LeftOut);
                    }});
}
