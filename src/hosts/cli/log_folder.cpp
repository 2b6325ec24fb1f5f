#include "hosts/cli/log_folder.h"

#include "hosts/cli/open_tool.h"
#include "hosts/common/log_folder.h"

namespace cli {

std::string logFolderClause(OpenTool& tool)
{
    const auto trouble = logFolderTrouble(tool.context(), tool.report());
    return trouble ? asClause(*trouble) : "";
}

} // namespace cli
