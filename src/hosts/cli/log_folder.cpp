#include "hosts/cli/log_folder.h"

#include "hosts/cli/open_tool.h"
#include "hosts/common/gather_outcome.h"
#include "hosts/common/gather_report.h"
#include "platform/file_system.h"

std::string logFolderTrouble(OpenTool& tool)
{
    const std::string& folder = tool.context().g_strLogFolder;
    if (const auto why = tool.report().listingFailure(folder))
        return asClause({gatherSentences::logsNotListed, {folder, *why}});
    try {
        if (tool.context().platform.files.folderExists(folder)) return {};
    } catch (const RunTimeError& error) {
        return asClause({gatherSentences::logsNotListed, {folder, error.description()}});
    }
    return asClause({gatherSentences::noLogFolder, {folder}});
}
