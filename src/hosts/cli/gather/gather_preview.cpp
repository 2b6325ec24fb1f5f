#include "hosts/cli/gather/gather_preview.h"

#include "gather/pipeline.h"
#include "hosts/cli/gather/gather_wizard.h"
#include "hosts/cli/log_folder.h"
#include "hosts/cli/terminal/output.h"
#include "hosts/common/gather/gather_needs.h"
#include "system/machine_path.h"

#include <cstdint>
#include <optional>

namespace cli {

namespace {

struct PlannedLog {
    std::string name;
    std::optional<std::int64_t> size; ///< bytes; none for a file that is not there
};

struct Plan {
    std::vector<PlannedLog> logs;
    std::vector<std::string> eventLogs;
    std::int64_t size = 0; ///< of all logs; event logs have none before they are captured
};

std::optional<std::int64_t> sizeOf(OpenTool& tool, const std::string& log)
{
    const auto facts = logFacts(tool.context().platform.files, tool.context().g_strLogFolder, log);
    if (!facts) return {};
    return facts->size;
}

/// The steps of the progress page; one without a text stands for an empty list.
Plan planOf(OpenTool& tool, const TreeView& steps)
{
    Plan plan;
    for (const TreeNode* root : steps.roots()) {
        const bool server = root->text() == mdlLogs::orvanLogsBranch;
        for (const TreeNode* leaf = root->child(); leaf; leaf = leaf->next()) {
            if (leaf->text().empty()) continue;
            if (server)
                plan.logs.push_back({leaf->text(), sizeOf(tool, leaf->text())});
            else
                plan.eventLogs.push_back(leaf->text());
        }
    }
    for (const PlannedLog& log : plan.logs) plan.size += log.size.value_or(0);
    return plan;
}

Json orNull(const std::optional<std::int64_t>& number)
{
    return number ? Json(*number) : Json(nullptr);
}

std::string bytes(const std::optional<std::int64_t>& number)
{
    return number ? groupedNumber(*number) : "?";
}

std::string table(const Plan& plan, const std::optional<std::int64_t>& room)
{
    Table rows({"Log", "Bytes"});
    rows.alignRight(1);
    for (const PlannedLog& log : plan.logs) rows.row({log.name, bytes(log.size)});
    for (const std::string& log : plan.eventLogs) rows.row({log + " event log", ""});
    rows.row({"All server logs", groupedNumber(plan.size)});
    rows.row({"Free at the destination", bytes(room)});
    return rows.text();
}

} // namespace

void preview(OpenTool& tool, GatherWizard& wizard, const std::optional<FrameEnds>& frame,
             Output& output)
{
    requireBeginning(tool, wizard);
    const Plan plan = planOf(tool, wizard.steps());
    const std::string destination = tool.machinePath(wizard.destination());
    const auto room = roomBelow(filePathOf(destination));
    if (const std::string trouble = logFolderClause(tool); !trouble.empty())
        output.message(trouble);
    if (!output.json()) {
        output.line("Would gather into " + shownPathOf(destination));
        output.text(table(plan, room));
        return;
    }
    Json logs = Json::array();
    for (const PlannedLog& log : plan.logs)
        logs.push_back({{"name", log.name}, {"size", orNull(log.size)}});
    Json result = {{"destination", shownPathOf(destination)},
                   {"logs", logs},
                   {"eventLogs", plan.eventLogs},
                   {"size", plan.size},
                   {"freeSpace", orNull(room)}};
    addFrame(result, frame);
    output.value(result);
}

} // namespace cli
