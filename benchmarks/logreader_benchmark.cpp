#include "logreader/format_line.h"
#include "logreader/parse_data.h"
#include "logreader/parse_diagnostic.h"

#include "support/test_tool.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <new>
#include <string>
#include <string_view>

namespace {
std::int64_t allocations = 0;
}

// Out of line, or the compiler takes a pair of these for a mismatched one.
[[gnu::noinline]] void* operator new(std::size_t size)
{
    ++allocations;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* memory) noexcept
{
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace {

const std::string basicLine =
    "15:23:07:123 (RoCsMgr,1234,Conversation,7) Call answered on port 12 by the greeting of "
    "mailbox 4711, caller unknown, 3 rings";
const std::string extendedRaw =
    "15:23:07:123,RoCsMgr,1234,5120,12,0123456789abcdef0123456789abcdef,Conversation,7,answered";
const std::string extendedLine =
    "15:23:07:123 (RoCsMgr,1234,Conversation,7) 0123456789abcdef0123456789abcdef: answered";
const std::string malformedLine = std::string(130, 'x');
const std::string dataLine = "2005-10-08 15:23:07,RoCsMgr,1234,a record of a data file, 3 fields";

/// Runs one line again and again and reports the allocations it takes.
template <typename Work>
void measure(benchmark::State& state, std::size_t bytes, Work&& work)
{
    work(); // the record's texts find their room
    const std::int64_t before = allocations;
    for (auto _ : state) work();
    const auto lines = static_cast<double>(state.iterations());
    state.counters["allocations"] = static_cast<double>(allocations - before) / lines;
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes));
}

void parse(benchmark::State& state, const std::string& line, const std::string& raw, bool extended)
{
    TestTool bench;
    bench.context.g_bExtendedLogFields = extended;
    DiagnosticLine record;
    measure(state, line.size(), [&] {
        mdlDiagnostics::parseDiagnostic(bench.context, line, raw, false, record);
        benchmark::DoNotOptimize(record);
    });
}

void parseBasic(benchmark::State& state)
{
    parse(state, basicLine, {}, false);
}

void parseExtended(benchmark::State& state)
{
    parse(state, extendedLine, extendedRaw, true);
}

void parseMalformed(benchmark::State& state)
{
    parse(state, malformedLine, {}, false);
}

void parseDataFile(benchmark::State& state)
{
    TestTool bench;
    DiagnosticLine record;
    measure(state, dataLine.size(), [&] {
        mdlDiagnostics::parseData(bench.context, dataLine, record);
        benchmark::DoNotOptimize(record);
    });
}

void format(benchmark::State& state)
{
    TestTool bench;
    std::string formatted;
    measure(state, basicLine.size(), [&] {
        mdlDiagnostics::formatLineSafe(bench.context, basicLine, formatted);
        benchmark::DoNotOptimize(formatted);
    });
}

/// What `format` owes to the formatter, here the tests' own.
void formatterAlone(benchmark::State& state)
{
    TestTool bench;
    std::string formatted;
    measure(state, basicLine.size(), [&] {
        formatted.clear();
        bench.eventReporter.formatTraceLine(basicLine, formatted);
        benchmark::DoNotOptimize(formatted);
    });
}

} // namespace

BENCHMARK(parseBasic);
BENCHMARK(parseExtended);
BENCHMARK(parseMalformed);
BENCHMARK(parseDataFile);
BENCHMARK(format);
BENCHMARK(formatterAlone);
