#include "settings/help.h"

#include "core/error_trap.h"
#include "core/localisation.h"
#include "platform/desktop.h"
#include "platform/file_system.h"
#include "platform/host_module.h"
#include "runtime/numbers.h"

namespace {
constexpr const char* moduleName = "mdlHTMLHelp";
constexpr int firstPage = 0;
} // namespace

std::string mdlHTMLHelp::getHelpFileName(ToolContext& tool)
{
    ErrorTrap step{tool, moduleName, "getHelpFileName", countedTrap};
    std::string file;
    step.body([&] {
        const std::string base = tool.platform.module.folder() + "\\OrvanDiagnosticTool";
        bool exists = false;
        const std::string userCode = step.value("", [&] { return userLanguageCode(tool); });
        file = base + "_" + userCode + ".chm";
        step([&] { exists = tool.platform.files.fileExists(file); });
        if (exists) return;
        file = base + "_ENU.chm";
        step([&] { exists = tool.platform.files.fileExists(file); });
        if (!exists) file = base + ".chm";
    });
    return file;
}

void mdlHTMLHelp::showCHMHelp(ToolContext& tool, const std::string& file,
                              std::optional<std::int32_t> topic)
{
    ErrorTrap step{tool, moduleName, "showCHMHelp", countedTrap};
    step.body([&] {
        step([&] {
            tool.g_hwndHelp = tool.platform.desktop.showHelp(file, topic.value_or(firstPage));
        });
        step.log("hwndHelp returned = " + numberText(std::int64_t{tool.g_hwndHelp}),
                 logLevel::verbose);
    });
}
