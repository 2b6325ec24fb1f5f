#include "backends/site/files/site_file_system.h"
#include "backends/site/registry/site_registry.h"
#include "tracelines/trace_line_format.h"

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace {

const std::string rawLine =
    "15:23:07:123,Conv,1234,12,3,0123456789abcdef0123456789abcdef,CallFlow,7,"
    "Call from extension 4711 was answered by the automated attendant";

/// A folder of the machine with a drive C:, gone with the object.
class BenchmarkSite {
public:
    BenchmarkSite() { std::filesystem::create_directories(folder + "/drive_c/Logs"); }
    ~BenchmarkSite() { std::filesystem::remove_all(folder); }

    const std::string folder = std::filesystem::temp_directory_path() / "orvan-site-benchmark";
};

void formatExtendedLine(benchmark::State& state)
{
    std::string formatted;
    for (auto _ : state) {
        formatted.clear();
        benchmark::DoNotOptimize(appendFormattedTraceLine(rawLine, LogFields::extended, formatted));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(rawLine.size()));
}
BENCHMARK(formatExtendedLine);

void readLines(benchmark::State& state)
{
    const BenchmarkSite site;
    constexpr int lines = 200'000;
    {
        std::ofstream log(site.folder + "/drive_c/Logs/diag.txt", std::ios::binary);
        for (int i = 0; i < lines; ++i) log << rawLine << "\r\n";
    }
    SitePaths paths(site.folder);
    const SiteFileSystem files(paths, {});
    for (auto _ : state) {
        const auto reader = files.openForReading("C:\\Logs\\diag.txt");
        while (!reader->atEnd()) benchmark::DoNotOptimize(reader->readLine());
    }
    state.SetItemsProcessed(state.iterations() * lines);
}
BENCHMARK(readLines)->Unit(benchmark::kMillisecond);

void readRegistryValue(benchmark::State& state)
{
    const BenchmarkSite site;
    SiteRegistry registry{RootFolder(site.folder)};
    const std::string key = "Software\\Kelma Systems\\Kelma Orvan\\RoLogMgr";
    registry.createKey(registryRoot::localMachine, key);
    registry.setValue(registryRoot::localMachine, key, "Output Path",
                      {registryType::text, {'C', ':'}});
    for (auto _ : state)
        benchmark::DoNotOptimize(registry.value(registryRoot::localMachine, key, "Output Path"));
}
BENCHMARK(readRegistryValue);

void listFolder(benchmark::State& state)
{
    const BenchmarkSite site;
    constexpr int count = 2000;
    for (int i = 0; i < count; ++i)
        std::ofstream(site.folder + "/drive_c/Logs/diag_RoCsMgr_20051008_" +
                      std::to_string(100000 + i) + ".txt");
    SitePaths paths(site.folder);
    const SiteFileSystem files(paths, {});
    for (auto _ : state) benchmark::DoNotOptimize(files.entries("C:\\Logs"));
    state.SetItemsProcessed(state.iterations() * count);
}
BENCHMARK(listFolder)->Unit(benchmark::kMillisecond);

} // namespace
