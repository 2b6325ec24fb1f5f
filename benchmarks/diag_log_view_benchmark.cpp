#include "shell/snapin_definition.h"
#include "shell/snapin_orvan_diagnostics.h"
#include "support/test_tool.h"

#include <benchmark/benchmark.h>

#include <string>

namespace {

constexpr std::size_t largestShownLog = 2'500'000;

std::string fullLog()
{
    std::string content;
    for (int number = 1;; ++number) {
        const std::string line = "15:23:07:123,Conversation," + std::to_string(number) +
                                 ",CallFlow,7,Call answered on port 12, mailbox 4711\r\n";
        if (content.size() + line.size() > largestShownLog) return content;
        content += line;
    }
}

/// Shows the largest log that can be shown, from the reading to the sorted rows.
void showLargestLog(benchmark::State& state)
{
    TestTool tool;
    const std::string content = fullLog();
    tool.files.with("C:\\diag.txt", content);
    const SnapInDefinition definition = snapinDefinition();
    Console console(definition);
    snapinOrvanDiagnostics snapIn(tool.context, console);
    console.load(snapIn);
    ScopeTree& items = console.scopeItems();
    ScopeItem& log = items.addChild("nodeLogs", "C:\\diag.txt", items.item(1));

    for (auto _ : state) console.currentView().select(log);

    state.SetBytesProcessed(static_cast<std::int64_t>(content.size()) * state.iterations());
}

} // namespace

BENCHMARK(showLargestLog)->Unit(benchmark::kMillisecond);
