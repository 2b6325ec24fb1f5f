#include "server/diagnostic_grid_catalogue.h"

#include "core/error_trap.h"
#include "core/localisation.h"
#include "core/utility.h"
#include "platform/file_system.h"
#include "platform/xml.h"
#include "runtime/numbers.h"

namespace {

constexpr std::string_view moduleName = "mdlDiagnosticGrids";

XmlDocument& catalogue(ToolContext& tool)
{
    if (!tool.g_domDiagnosticGrids) tool.g_domDiagnosticGrids = tool.platform.xml.newDocument();
    return *tool.g_domDiagnosticGrids;
}

XmlElementPtr component(ToolContext& tool, const std::string& name)
{
    return catalogue(tool).selectSingleNode("DiagnosticGrids/DiagnosticGrid[@name='" + name + "']");
}

} // namespace

std::string mdlDiagnosticGrids::cataloguePath(const std::string& installFolder,
                                              const std::string& language)
{
    return installFolder + "\\GuiResources\\Resources\\" + language + "\\DiagnosticGrids_" +
           language + ".xml";
}

void mdlDiagnosticGrids::openDiagGrids(ToolContext& tool)
{
    ErrorTrap step{tool, moduleName, "openDiagGrids"};
    std::string folder;
    std::string language;
    bool exists = false;
    bool existsInEnglish = false;

    step.enterProc();
    step([&] { folder = getInstalledFolderPath(tool); });
    step([&] { language = userLanguageCode(tool); });
    step([&] { exists = tool.platform.files.fileExists(cataloguePath(folder, language)); });
    if (exists) {
        step([&] { catalogue(tool).load(cataloguePath(folder, language)); });
    } else {
        step([&] {
            existsInEnglish = tool.platform.files.fileExists(cataloguePath(folder, "ENU"));
        });
        if (existsInEnglish) step([&] { catalogue(tool).load(cataloguePath(folder, "ENU")); });
    }
    step.exitProc();
}

std::vector<std::string> mdlDiagnosticGrids::EnumDiagnosticLevels(ToolContext& tool,
                                                                  const std::string& componentName)
{
    ErrorTrap step{tool, moduleName, "EnumDiagnosticLevels"};
    XmlElementPtr found;
    std::vector<XmlElementPtr> levels;
    std::vector<std::string> texts;
    int number = 0;
    std::string text;

    step([&] { found = component(tool, componentName); });
    if (!found) {
        step.log("Cannot find " + componentName +
                     " in GuidResources\\Resources\\Enu\\DiagnosticGrids_ENU.xml, skipping this "
                     "component.  Check for case mismatch between this file and "
                     "tbl_LoggerDiagnosticGrid.",
                 logLevel::error);
        return {"", ""};
    }
    step([&] { levels = found->selectNodes("DiagnosticLevels/DiagnosticLevel"); });
    step([&] {
        if (levels.empty()) throw RunTimeError(runTimeErrors::subscriptOutOfRange);
        texts.resize(levels.size());
    });
    for (const auto& level : levels) {
        step([&] { number = toInteger16(toNumber(requiredAttribute(level, "level"))); });
        step([&] { text = requiredAttribute(level, "text"); });
        step([&] {
            if (number < 0 || static_cast<std::size_t>(number) >= texts.size())
                throw RunTimeError(runTimeErrors::subscriptOutOfRange);
            texts[static_cast<std::size_t>(number)] = text;
        });
    }
    return texts;
}

std::string mdlDiagnosticGrids::GetDiagnosticLevelText(ToolContext& tool,
                                                       const std::string& componentName)
{
    ErrorTrap step{tool, moduleName, "GetDiagnosticLevelText"};
    XmlElementPtr found;
    std::string text;

    step([&] { found = component(tool, componentName); });
    if (!found) return componentName;
    step([&] { text = requiredAttribute(found, "text"); });
    return text;
}
