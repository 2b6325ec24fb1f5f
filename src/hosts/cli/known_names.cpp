#include "hosts/cli/known_names.h"

#include "backends/portable/site_database.h"
#include "backends/portable/sqlite_handle.h"
#include "core/localisation.h"
#include "core/utility.h"
#include "platform/file_system.h"
#include "platform/host_module.h"
#include "platform/xml.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "server/diagnostic_grid_catalogue.h"
#include "wizards/micro_trace_wizard.h"

#include <map>

namespace {

/// Of the files of one group the first says whether the group is shown.
struct ShownGroups {
    std::map<std::string, bool> shown;

    bool operator()(const XmlElement& group, const std::string& name)
    {
        return shown.emplace(name, !group.attribute("DONTSHOW")).first->second;
    }
};

/// The catalogue in the user's language, or else in English.
std::string catalogueFile(ToolContext& context)
{
    const std::string folder = getInstalledFolderPath(context);
    const std::string file = mdlDiagnosticGrids::cataloguePath(folder, userLanguageCode(context));
    if (context.platform.files.fileExists(file)) return file;
    return mdlDiagnosticGrids::cataloguePath(folder, "ENU");
}

} // namespace

std::vector<std::string> knownNames::macroTraces(OpenTool& tool)
{
    const Platform& platform = tool.context().platform;
    const std::string folder = platform.module.folder() + "\\ZMKXML\\";
    std::vector<std::string> names;
    ShownGroups isShown;
    for (const std::string& file : platform.files.matching(folder + "HT*.xml")) {
        const auto definitions = platform.xml.newDocument();
        if (!definitions->load(folder + file)) continue;
        const XmlElementPtr group = definitions->selectSingleNode("GA");
        if (!group) continue;
        const std::string groupName = group->attribute("NAME").value_or("");
        if (!isShown(*group, groupName)) continue;
        for (const XmlElementPtr& trace : group->selectNodes("TRACE"))
            names.push_back(groupName + " - " + trace->attribute("NAME").value_or(""));
    }
    return names;
}

/// By a connection of its own: the tool opens its connection when it starts, and never closes it.
bool knownNames::hasComponent(OpenTool& tool, const std::string& component)
{
    try {
        SiteDatabase database = tool.site().database().another();
        database.openFor(DatabaseUse::look);
        database.open("", "", "");
        const auto rows = database.openRecordset("SELECT Name FROM vw_LoggerDiagnosticGrid",
                                                 CursorKind::forwardOnly, LockKind::readOnly);
        for (; !rows->atEnd(); rows->moveNext())
            if (trim(valueAsText(rows->field("Name"))) == component) return true;
        return false;
    } catch (const RunTimeError&) {
        return true;
    }
}

bool knownNames::showsLevel(OpenTool& tool, const std::string& component, int level)
{
    ToolContext& context = tool.context();
    if (!context.g_domDiagnosticGrids) {
        context.g_domDiagnosticGrids = context.platform.xml.newDocument();
        context.g_domDiagnosticGrids->load(catalogueFile(context));
    }
    const auto texts = mdlDiagnosticGrids::EnumDiagnosticLevels(context, component);
    return level < static_cast<int>(texts.size()) &&
           !isPlaceholderLevel(texts[static_cast<std::size_t>(level)]);
}
