#include "gather/pipeline.h"

#include "controls/label.h"
#include "controls/progress_bar.h"
#include "controls/tree_view.h"
#include "core/error_trap.h"
#include "core/localisation.h"
#include "gather/cancel.h"
#include "gather/gather_database.h"
#include "gather/importers/data_import.h"
#include "gather/importers/diagnostic_copy.h"
#include "gather/importers/diagnostic_import.h"
#include "gather/importers/event_log_capture.h"
#include "gather/packaging.h"
#include "platform/file_system.h"
#include "runtime/text.h"

#include <memory>
#include <utility>

namespace {

/// The roots of the steps tree, which are no logs.
constexpr int rootCount = 2;

/// One run of the pipeline: what it was given, and its trap.
struct Gather {
    ToolContext& tool;
    ErrorTrap& step;
    TreeView& treeview;
    Label& label;
    ProgressBar& progressCurrent;
    ProgressBar& progressOverall;
    const std::string& destination;
    Date dateStart;
    Date dateEnd;
    GatherDatabase database{tool, step};

    /// Equal dates are no time frame.
    bool fillsDatabase() const { return dateStart != dateEnd; }

    std::string processing(const std::string& what) const
    {
        return myLoadResString(tool, TextId::processing) + " " + what;
    }
};

void makeDestination(Gather& run)
{
    const bool exists = run.step.value(
        false, [&] { return run.tool.platform.files.folderExists(run.destination); });
    if (!exists) run.step([&] { run.tool.platform.files.createPrivateFolder(run.destination); });
}

void gatherServerLog(Gather& run, const std::string& fileName)
{
    run.step([&] { run.label.setCaption(run.processing(fileName + "...")); });
    run.step([&] { run.label.refresh(); });
    if (!run.fillsDatabase()) {
        mdlLogs::processOrvanLogFile(run.tool, fileName, run.destination, run.progressCurrent,
                                     run.label);
        return;
    }
    const bool isDiagnostic = lowerCase(fileName).find("diag") != std::string::npos;
    const auto import =
        isDiagnostic ? mdlLogs::processOrvanLogFileToDB : mdlLogs::processOrvanDataFileToDB;
    import(run.tool, fileName, run.database.traces(), run.progressCurrent, run.label, run.dateStart,
           run.dateEnd);
}

void gatherEventLog(Gather& run, const std::string& logName)
{
    run.step([&] {
        run.label.setCaption(run.processing(myLoadResString(run.tool, TextId::windows) + " " +
                                            logName + " " +
                                            myLoadResString(run.tool, TextId::eventLogWithDots)));
    });
    run.step([&] { run.label.refresh(); });
    mdlLogs::processWindowsEventLogFile(run.tool, logName, run.destination, run.progressCurrent,
                                        run.label, run.dateStart, run.dateEnd);
}

void gatherLeaf(Gather& run, TreeNode& leaf)
{
    run.step([&] { leaf.setBold(true); });
    run.step([&] { leaf.ensureVisible(); });
    run.step([&] { run.treeview.refresh(); });

    const std::string path = run.step.value("", [&] { return leaf.fullPath(); });
    const std::string log = leaf.text();
    if (!log.empty()) {
        if (beginsWith(path, mdlLogs::orvanLogsBranch))
            gatherServerLog(run, log);
        else
            gatherEventLog(run, log);
    }

    run.step([&] { leaf.setBold(false); });
    run.step([&] { run.progressOverall.setValue(run.progressOverall.value() + 1); });
}

/// Walks by number, as the tree may be filled anew while the person's events are let in.
void gatherLeaves(Gather& run)
{
    for (int index = 1; index <= run.treeview.count(); ++index) {
        const std::shared_ptr<TreeNode> node = run.treeview.hold(index);
        if (node->children() > 0) continue;
        gatherLeaf(run, *node);
        if (mdlLogs::cancelCurrentProcess(run.tool)) {
            mdlLogs::cancelCurrentProcess(run.tool, false);
            return;
        }
    }
}

void packResults(Gather& run)
{
    run.step([&] { run.label.setCaption(myLoadResString(run.tool, TextId::creatingCabinet)); });
    mdlLogs::compressResults(run.tool, run.destination, run.tool.g_strTraceDatabase);
    run.step([&] { run.label.setCaption(""); });
}

} // namespace

std::string mdlLogs::processLogs(ToolContext& tool, TreeView& treeview, Label& label,
                                 ProgressBar& progressCurrent, ProgressBar& progressOverall,
                                 std::string destination, Date dateStart, Date dateEnd)
{
    ErrorTrap step{tool, "mdlLogs", "processLogs"};
    Gather run{tool,        step,      treeview, label, progressCurrent, progressOverall,
               destination, dateStart, dateEnd};

    step.enterProc();
    makeDestination(run);
    step([&] { progressOverall.setMaximum(static_cast<float>(treeview.count() - rootCount)); });
    step([&] { progressOverall.setValue(0); });
    if (run.fillsDatabase()) run.database.open(destination);
    gatherLeaves(run);
    if (run.fillsDatabase()) {
        run.database.finish();
        packResults(run);
    }
    step.exitProc();
    return destination;
}
