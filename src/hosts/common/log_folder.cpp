#include "hosts/common/log_folder.h"

#include "core/tool_context.h"
#include "hosts/common/gather/gather_report.h"
#include "hosts/common/gather/gather_sentences.h"
#include "platform/file_system.h"
#include "runtime/run_time_error.h"

std::optional<Sentence> logFolderTrouble(const ToolContext& tool, const GatherReport& report)
{
    const std::string& folder = tool.g_strLogFolder;
    if (const auto why = report.listingFailure(folder))
        return Sentence{gatherSentences::logsNotListed, {folder, *why}};
    try {
        if (tool.platform.files.folderExists(folder)) return std::nullopt;
    } catch (const RunTimeError& error) {
        return Sentence{gatherSentences::logsNotListed, {folder, error.description()}};
    }
    return Sentence{gatherSentences::noLogFolder, {folder}};
}
