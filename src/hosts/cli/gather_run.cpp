#include "hosts/cli/gather_run.h"

#include "gather/logs.h"
#include "gather/trace_object.h"
#include "hosts/cli/gather_progress.h"
#include "hosts/cli/interrupt.h"
#include "platform/controls.h"
#include "platform/file_system.h"
#include "runtime/text.h"

#include <algorithm>
#include <filesystem>

#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// The controls that a gather reports to, and the steps it walks.
struct GatherControls {
    TreeView steps;
    Label step;
    ProgressBar current;
    ProgressBar overall;
};

void addSteps(TreeView& steps, const std::string& root, const StringArray& logs)
{
    TreeNode& node = steps.add(root);
    for (int index = 1; index <= logs.upperBound(); ++index) steps.addChild(node, logs.at(index));
}

/// An error that cost the person a result; malformed lines, which are copied as they can be, do
/// not.
bool costsAResult(const RunTimeError& error, std::string_view procName)
{
    return beginsWith(procName, "[mdlLogs]") && error.number() != runTimeErrors::invalidCall &&
           error.number() != runTimeErrors::invalidPropertyValue;
}

void listFiles(GatherResult& result)
{
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(result.destination, none)) {
        const std::string name = entry.path().filename().string();
        result.files.push_back(name);
        if (entry.path().extension() == ".cab") result.cabinet = entry.path().string();
    }
    std::sort(result.files.begin(), result.files.end());
}

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

GatherResult runGather(OpenTool& tool, classTraceObject& job)
{
    GatherResult result;
    ToolContext& context = tool.context();
    context.onTrappedError = [&](const RunTimeError& error, std::string_view procName) {
        if (!result.failure && costsAResult(error, procName)) result.failure = error.description();
    };
    const std::string earlierDatabase = context.g_strTraceDatabase;

    GatherControls controls;
    addSteps(controls.steps, std::string(mdlLogs::orvanLogsBranch), job.getOrvanLogs());
    addSteps(controls.steps, "Windows Event Logs", job.getWindowsLogs());
    {
        const InterruptWish interrupt;
        GatherProgress progress(controls.step, controls.current, controls.overall);
        tool.desktop().beforeMessage([&] { progress.clear(); });
        tool.desktop().onPump([&] {
            if (!interrupt.made() || result.cancelled) return;
            result.cancelled = true;
            mdlLogs::cancelCurrentProcess(context, true);
        });
        job.m_LogDestinationDirectory = mdlLogs::processLogs(
            context, controls.steps, controls.step, controls.current, controls.overall,
            job.m_LogDestinationDirectory, job.m_dateStart, job.m_dateEnd);
        tool.desktop().onPump({});
        tool.desktop().beforeMessage({});
    }
    context.onTrappedError = {};

    result.destination = tool.machinePath(job.m_LogDestinationDirectory);
    if (context.g_strTraceDatabase != earlierDatabase)
        result.database = tool.machinePath(context.g_strTraceDatabase);
    listFiles(result);
    if (!result.failure && !tool.desktop().failures().empty())
        result.failure = "not all logs could be gathered";
    return result;
}

void report(Output& output, const GatherResult& result)
{
    const auto orNull = [](const std::optional<std::string>& path) {
        return path ? Json(*path) : Json(nullptr);
    };
    if (output.json()) {
        output.value({{"destination", result.destination},
                      {"database", orNull(result.database)},
                      {"cabinet", orNull(result.cabinet)},
                      {"files", result.files}});
    } else {
        output.line("Gathered into " + result.destination);
        for (const auto& file : result.files) output.line("  " + file);
    }
    if (result.cancelled)
        throw CommandFailure("cancelled; what was read until then is kept in " +
                             result.destination);
    if (result.failure) throw CommandFailure("not everything was gathered: " + *result.failure);
}
