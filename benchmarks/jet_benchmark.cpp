#include "backends/jet/jet_engine.h"
#include "backends/jet/schema/blank_database.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace {

constexpr std::int64_t rowsPerRun = 1'000'000;

std::string databasePath()
{
    return (std::filesystem::temp_directory_path() / "orvan_jet_benchmark.mdb").string();
}

void makeBlankDatabase(const std::string& path)
{
    std::ifstream schema(ORVAN_TRACE_SCHEMA);
    const std::string text(std::istreambuf_iterator<char>(schema), {});
    const std::string image = jet::blankDatabase(jet::parseSchema(text));
    std::ofstream(path, std::ios::binary) << image;
}

/// Traces of several lengths: some lie in the row, most on pages of long texts.
std::vector<std::string> makeTraces()
{
    std::vector<std::string> traces;
    for (std::size_t length = 12; length <= 140; length += 4) {
        std::string trace = "Session ";
        while (trace.size() < length) trace += "opened for mailbox 4711 ";
        trace.resize(length);
        traces.push_back(trace);
    }
    return traces;
}

/// Sets what a gather sets in a row of a diagnostic log, field by field.
class RowMaker {
public:
    explicit RowMaker(TraceRecordset& rows) : rows_(rows)
    {
        constexpr std::array<const char*, 11> names = {
            "Date", "Process", "Source", "TraceNumber", "Component", "TraceLevel",
            "Port", "Trace",   "CallId", "Highlight",   "qrvIndex"};
        for (std::size_t at = 0; at < names.size(); ++at) fields_[at] = &rows.field(names[at]);
    }

    void add(std::int64_t number)
    {
        rows_.addNew();
        fields_[0]->setText("10/8/2005 15:23:07:120");
        fields_[1]->setText("RoCsMgr");
        fields_[2]->setText("5012");
        fields_[3]->setNumber(static_cast<std::int32_t>(number));
        fields_[4]->setText("Conversation");
        fields_[5]->setNumber(13);
        fields_[6]->setText("7");
        fields_[7]->setText(traces_[static_cast<std::size_t>(number) % traces_.size()]);
        fields_[8]->setText("1b4e28ba2fa111d2883f0016d3cca427");
        fields_[9]->setNumber(0);
        fields_[10]->setText("Conversation_RoCsMgr_13_5012");
        benchmark::DoNotOptimize(fields_[10]->text());
        rows_.update();
    }

private:
    TraceRecordset& rows_;
    std::array<TraceField*, 11> fields_{};
    std::vector<std::string> traces_ = makeTraces();
};

std::uintmax_t bytesWritten = 0; // by the last run, for the plain write to match

void addRowsToATraceDatabase(benchmark::State& state)
{
    const std::string path = databasePath();
    for (auto _ : state) {
        state.PauseTiming();
        makeBlankDatabase(path);
        state.ResumeTiming();
        jet::JetEngine engine([](const std::string& name) { return name; });
        const auto database = engine.openDatabase(path);
        const auto rows = database->openRecordset("tblTraces");
        RowMaker maker(*rows);
        for (std::int64_t row = 0; row < rowsPerRun; ++row) maker.add(row);
        rows->close();
        database->close();
    }
    bytesWritten = std::filesystem::file_size(path);
    state.SetItemsProcessed(state.iterations() * rowsPerRun);
    state.counters["bytes_per_row"] =
        static_cast<double>(bytesWritten) / static_cast<double>(rowsPerRun);
    std::filesystem::remove(path);
}

void writeAsManyPagesPlainly(benchmark::State& state)
{
    const std::string path = databasePath();
    const std::vector<char> page(4096, 'x');
    for (auto _ : state) {
        std::FILE* file = std::fopen(path.c_str(), "wb");
        for (std::uintmax_t written = 0; written < bytesWritten; written += page.size())
            std::fwrite(page.data(), 1, page.size(), file);
        std::fclose(file);
    }
    state.SetItemsProcessed(state.iterations() * rowsPerRun);
    std::filesystem::remove(path);
}

BENCHMARK(addRowsToATraceDatabase)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(writeAsManyPagesPlainly)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
