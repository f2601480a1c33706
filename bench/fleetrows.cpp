#include "bench/benchrow.h"
#include "bench/commandrun.h"
#include "bench/fleetfiles.h"

#include <fcntl.h>
#include <map>
#include <memory>
#include <rapidjson/document.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using Form = FleetFiles::Form;

constexpr int kFiles = 10000;

const FleetFiles& files(Form form)
{
    static std::map<Form, std::unique_ptr<FleetFiles>> made;
    std::unique_ptr<FleetFiles>& found = made[form];
    if (!found)
        found = std::make_unique<FleetFiles>(form, kFiles);
    return *found;
}

BenchRow::Work checkOn(Form form, int cores)
{
    return [form, cores](benchmark::State& state, int) {
        const QStringList arguments{QStringLiteral("check"), QStringLiteral("--template"),
                                    FleetFiles::templateFile(), QStringLiteral("--config"),
                                    files(form).folder()};
        for (auto _ : state) {
            if (CommandRun(arguments, cores).finish() != 0)
                state.SkipWithError("not all files could be saved");
        }
    };
}

bool parse(const std::string& path)
{
    const int file = ::open(path.c_str(), O_RDONLY);
    struct stat found = {};
    if (file < 0 || ::fstat(file, &found) != 0)
        return false;
    std::string text(static_cast<std::size_t>(found.st_size), '\0');
    const bool isRead = ::read(file, text.data(), text.size()) == found.st_size;
    ::close(file);
    rapidjson::Document document;
    document.Parse(text.data(), text.size());
    return isRead && !document.HasParseError();
}

BenchRow::Work parseOf(Form form)
{
    return [form](benchmark::State& state, int size) {
        std::vector<std::string> paths;
        for (int i = 0; i < size; ++i)
            paths.push_back(files(form).path(i).toStdString());
        for (auto _ : state) {
            for (const std::string& path : paths) {
                if (!parse(path))
                    state.SkipWithError("not parsed");
            }
        }
    };
}

} // namespace

/// The command's start and end are counted, too.
void addFleetRows(BenchRows& rows)
{
    constexpr double kTwoCores = 1 / 1.8;
    rows.push_back({"Check compact files, one core", "RapidJSON reads and parses them", 8, kFiles,
                    0, checkOn(Form::Compact, 1), parseOf(Form::Compact)});
    rows.push_back({"Check indented files, one core", "RapidJSON reads and parses them", 6, kFiles,
                    0, checkOn(Form::Indented, 1), parseOf(Form::Indented)});
    rows.push_back({"Check compact files, two cores", "the same on one", kTwoCores, kFiles, 0,
                    checkOn(Form::Compact, 2), checkOn(Form::Compact, 1)});
    rows.push_back({"Check indented files, two cores", "the same on one", kTwoCores, kFiles, 0,
                    checkOn(Form::Indented, 2), checkOn(Form::Indented, 1)});
}
