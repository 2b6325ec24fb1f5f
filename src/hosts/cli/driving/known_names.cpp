#include "hosts/cli/driving/known_names.h"

#include "core/localisation.h"
#include "core/utility.h"
#include "platform/file_system.h"
#include "platform/host_module.h"
#include "platform/tool_files.h"
#include "platform/xml.h"
#include "runtime/numbers.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "server/configuration_database.h"
#include "server/diagnostic_grid_catalogue.h"
#include "wizards/micro_trace_wizard.h"

#include <memory>

namespace cli {

namespace {

/// Definition files, put together as the tool does when it starts: without its log, which is not
/// to be begun for a look.
class MergedDefinitions {
public:
    explicit MergedDefinitions(XmlService& xml)
        : merged_(xml.newDocument()), file_(xml.newDocument())
    {
        top_ = merged_->appendDocumentElement("HYBRIDTRACES");
    }

    /// False for a file that is no definition, and brings nothing.
    bool add(const std::string& path)
    {
        const XmlElementPtr group = file_->load(path) ? file_->selectSingleNode("GA") : nullptr;
        if (group) name_ = group->attribute("NAME").value_or(name_); // else that of the file before
        const XmlElementPtr& known = groupNamed(name_);
        if (!group) return false;
        if (known)
            for (const auto& trace : group->selectNodes("TRACE")) known->appendChild(trace);
        else
            top_->appendChild(group);
        return true;
    }

    const XmlDocument& merged() const { return *merged_; }

private:
    /// By the tool's own path. A name that breaks it counts to what was found for the one before,
    /// as it does where the tool puts them together.
    const XmlElementPtr& groupNamed(const std::string& name)
    {
        try {
            known_ = merged_->selectSingleNode("HYBRIDTRACES/GA[@NAME='" + name + "']");
        } catch (const RunTimeError&) {
            // The group before, or none.
        }
        return known_;
    }

    std::unique_ptr<XmlDocument> merged_;
    std::unique_ptr<XmlDocument> file_;
    XmlElementPtr top_;
    XmlElementPtr known_; ///< the group that is there already; null where there was none
    std::string name_;
};

/// The catalogue in the user's language, or else in English.
std::string catalogueFile(ToolContext& context)
{
    const std::string folder = getInstalledFolderPath(context);
    const std::string file = mdlDiagnosticGrids::cataloguePath(folder, userLanguageCode(context));
    if (context.platform.files.fileExists(file)) return file;
    return mdlDiagnosticGrids::cataloguePath(folder, "ENU");
}

bool holdsLevelTexts(const XmlDocument* catalogue)
{
    return catalogue && catalogue->selectSingleNode("DiagnosticGrids/DiagnosticGrid");
}

} // namespace

std::vector<knownNames::ShownTrace> knownNames::shownTraces(const XmlDocument& catalogue)
{
    std::vector<ShownTrace> traces;
    std::string name;
    for (const auto& group : catalogue.getElementsByTagName("GA")) {
        if (group->attribute("DONTSHOW")) continue;
        name = group->attribute("NAME").value_or(name);
        const std::string groupName = name;
        for (const auto& trace : group->selectNodes("TRACE")) {
            name = trace->attribute("NAME").value_or(name);
            traces.push_back({groupName, name, trace});
        }
    }
    return traces;
}

knownNames::MacroTraces knownNames::macroTraces(ToolContext& context)
{
    const Platform& platform = context.platform;
    const std::string folder =
        platform.module.folder() + "\\" + toolFiles::definitionsFolder + "\\";
    MacroTraces traces;
    MergedDefinitions definitions(platform.xml);
    for (const std::string& file : platform.files.matching(folder + "HT*.xml"))
        if (!definitions.add(folder + file)) traces.passedOver.push_back(file);
    for (const ShownTrace& shown : shownTraces(definitions.merged()))
        traces.shown.push_back(shown.group + " - " + shown.trace);
    return traces;
}

/// By a connection of its own: the tool opens its connection when it starts, and never closes it.
std::optional<std::vector<std::string>> knownNames::components(OpenTool& tool)
{
    try {
        const auto database = tool.database().anotherToLook();
        database->open(mdlOrvanDatabase::connectionStringOf("(local)"), "", "");
        const auto rows = database->openRecordset("SELECT Name FROM vw_LoggerDiagnosticGrid",
                                                  CursorKind::forwardOnly, LockKind::readOnly);
        std::vector<std::string> names;
        for (; !rows->atEnd(); rows->moveNext())
            names.emplace_back(trim(valueAsText(rows->field("Name"))));
        return names;
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

std::optional<std::string> knownNames::unreadCatalogue(OpenTool& tool)
{
    ToolContext& context = tool.context();
    if (holdsLevelTexts(context.g_domDiagnosticGrids.get())) return std::nullopt;
    std::string file = catalogueFile(context);
    // The server's folder may end with the separator that the tool puts behind it.
    if (const auto doubled = file.find("\\\\", 1); doubled != std::string::npos)
        file.erase(doubled, 1);
    return file;
}

std::vector<knownNames::ShownLevels> knownNames::shownLevels(ToolContext& context)
{
    const auto catalogue = context.platform.xml.newDocument();
    if (!catalogue->load(catalogueFile(context))) return {};
    std::vector<ShownLevels> components;
    for (const auto& component : catalogue->getElementsByTagName("DiagnosticGrid")) {
        ShownLevels shown{component->attribute("name").value_or(""), {}};
        for (const auto& level : component->selectNodes("DiagnosticLevels/DiagnosticLevel"))
            if (!isPlaceholderLevel(level->attribute("text").value_or("")))
                shown.levels.push_back(
                    static_cast<int>(leadingNumber(level->attribute("level").value_or(""))));
        components.push_back(std::move(shown));
    }
    return components;
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

} // namespace cli
