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

    step.enterProc();
    const std::string folder = step.value("", [&] { return getInstalledFolderPath(tool); });
    const std::string language = step.value("", [&] { return userLanguageCode(tool); });
    const bool exists = step.value(
        false, [&] { return tool.platform.files.fileExists(cataloguePath(folder, language)); });
    if (exists) {
        step([&] { catalogue(tool).load(cataloguePath(folder, language)); });
    } else {
        const bool existsInEnglish = step.value(
            false, [&] { return tool.platform.files.fileExists(cataloguePath(folder, "ENU")); });
        if (existsInEnglish) step([&] { catalogue(tool).load(cataloguePath(folder, "ENU")); });
    }
    step.exitProc();
}

std::vector<std::string> mdlDiagnosticGrids::EnumDiagnosticLevels(ToolContext& tool,
                                                                  const std::string& componentName)
{
    ErrorTrap step{tool, moduleName, "EnumDiagnosticLevels"};
    std::vector<std::string> texts;
    int number = 0;
    std::string text;

    const XmlElementPtr found = step.value(nullptr, [&] { return component(tool, componentName); });
    if (!found) {
        step.log("Cannot find " + componentName +
                     " in GuidResources\\Resources\\Enu\\DiagnosticGrids_ENU.xml, skipping this "
                     "component.  Check for case mismatch between this file and "
                     "tbl_LoggerDiagnosticGrid.",
                 logLevel::error);
        return {"", ""};
    }
    const auto levels =
        step.value({}, [&] { return found->selectNodes("DiagnosticLevels/DiagnosticLevel"); });
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
    const XmlElementPtr found = step.value(nullptr, [&] { return component(tool, componentName); });
    if (!found) return componentName;
    return step.value("", [&] { return requiredAttribute(found, "text"); });
}
