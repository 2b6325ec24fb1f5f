#include "hosts/cli/gather_run.h"

#include "hosts/cli/gather_failure.h"
#include "hosts/cli/gather_progress.h"
#include "hosts/cli/gather_wizard.h"
#include "hosts/cli/interrupt.h"
#include "hosts/cli/row_counts.h"

#include <algorithm>
#include <filesystem>
#include <map>

#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// When each cabinet in a folder was written.
std::map<std::string, fs::file_time_type> cabinetsIn(const fs::path& folder)
{
    std::map<std::string, fs::file_time_type> cabinets;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(folder, none))
        if (entry.path().extension() == ".cab")
            cabinets[entry.path().filename().string()] = entry.last_write_time(none);
    return cabinets;
}

std::vector<std::string> sortedNames(const fs::path& folder)
{
    std::vector<std::string> names;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(folder, none))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

/// Finds what a database gather made; a part that is missing is a failure. A cabinet may have been
/// written over that of a gather in the same second.
void findResults(GatherResult& result, const std::string& database,
                 const std::map<std::string, fs::file_time_type>& before)
{
    for (const auto& [name, written] : cabinetsIn(result.destination)) {
        const auto known = before.find(name);
        if (known == before.end() || known->second != written)
            result.cabinet = result.destination + "/" + name;
    }
    std::error_code none;
    if (fs::exists(database, none))
        result.database = database;
    else
        result.failure = "no trace database was made: " + result.failure.value_or("it has gone");
    if (!result.cabinet && !result.failure)
        result.failure = "no cabinet was made" + whyNoCabinet(result.destination);
}

/// While it lives: shows a run's progress, takes Ctrl-C for its Cancel and notes what goes wrong.
class RunWatch {
public:
    RunWatch(OpenTool& tool, GatherWizard& wizard, GatherResult& result)
        : tool_(tool), progress_(wizard.currentStep(), wizard.current(), wizard.overall())
    {
        tool.context().onTrappedError = [&](const RunTimeError& error, std::string_view procName) {
            if (result.failure || !costsAResult(error, procName)) return;
            result.failure = failureText(error, procName, wizard.steps());
            result.destinationMade = procName != pipelineProc ||
                                     fs::is_directory(tool_.machinePath(wizard.destination()));
        };
        tool.desktop().beforeMessage([this] { progress_.clear(); });
        tool.desktop().onPump([this, &wizard, &result] {
            if (!interrupt_.made() || result.cancelled) return;
            result.cancelled = true;
            wizard.cancel();
        });
    }

    ~RunWatch()
    {
        tool_.desktop().onPump({});
        tool_.desktop().beforeMessage({});
        tool_.context().onTrappedError = {};
    }

    RunWatch(const RunWatch&) = delete;
    RunWatch& operator=(const RunWatch&) = delete;

private:
    OpenTool& tool_;
    InterruptWish interrupt_;
    GatherProgress progress_;
};

} // namespace

void requireUsableDestination(OpenTool& tool, const std::string& destination)
{
    const fs::path folder = tool.machinePath(destination);
    std::error_code none;
    if (fs::exists(folder, none)) {
        if (!fs::is_directory(folder, none))
            throw CommandFailure("the destination " + folder.string() + " is not a folder");
        if (::access(folder.c_str(), W_OK) != 0)
            throw CommandFailure("the destination " + folder.string() + " may not be written to");
        return;
    }
    const fs::path parent = folder.parent_path();
    if (!fs::is_directory(parent, none))
        throw CommandFailure("the destination's folder " + parent.string() + " does not exist");
    if (::access(parent.c_str(), W_OK) != 0)
        throw CommandFailure("the destination can't be made: " + parent.string() +
                             " may not be written to");
}

GatherResult runGather(OpenTool& tool, GatherWizard& wizard)
{
    GatherResult result;
    const auto before = cabinetsIn(tool.machinePath(wizard.destination()));
    {
        const RunWatch watch(tool, wizard, result);
        wizard.run();
    }
    result.destination = tool.machinePath(wizard.destination());
    result.files = sortedNames(result.destination);
    if (wizard.makesDatabase())
        findResults(result, tool.machinePath(tool.context().g_strTraceDatabase), before);
    if (!result.failure && !tool.desktop().failures().empty())
        result.failure = "not all logs could be gathered";
    return result;
}

namespace {

std::string rowSummary(const std::string& database)
{
    const std::string name = fs::path(database).filename().string();
    const auto rows = rowsByProcess(database);
    if (rows.empty()) return "No line lies in the time frame: " + name + " has no rows\n";
    Table table({"Rows of " + name, ""});
    table.alignRight(1);
    for (const auto& [process, count] : rows) table.row({process, groupedNumber(count)});
    return table.text();
}

} // namespace

void report(Output& output, const GatherResult& result)
{
    const auto orNull = [](const std::optional<std::string>& path) {
        return path ? Json(*path) : Json(nullptr);
    };
    if (result.failure && !fs::is_directory(result.destination))
        throw CommandFailure("the destination " + result.destination +
                             (result.destinationMade ? " has gone: " : " can't be made: ") +
                             *result.failure);
    if (output.json()) {
        output.value({{"destination", result.destination},
                      {"database", orNull(result.database)},
                      {"cabinet", orNull(result.cabinet)},
                      {"files", result.files}});
    } else {
        output.line("Gathered into " + result.destination);
        for (const auto& file : result.files) output.line("  " + file);
        if (result.database) output.text(rowSummary(*result.database));
    }
    if (result.cancelled)
        throw CommandFailure("cancelled; what was read until then is kept in " +
                             result.destination);
    if (result.failure) throw CommandFailure("not everything was gathered: " + *result.failure);
}
