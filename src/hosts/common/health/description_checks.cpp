#include "core/localisation.h"
#include "core/utility.h"
#include "hosts/common/health/examined_server.h"
#include "hosts/common/health/health_checks.h"
#include "hosts/common/health/health_sentences.h"
#include "platform/file_system.h"
#include "platform/tool_files.h"
#include "platform/xml.h"
#include "server/diagnostic_grid_catalogue.h"

#include <algorithm>
#include <set>

namespace healthChecks {

namespace {

using namespace healthSentences;
using health::lacking;
using health::listed;
using health::notLookedAt;
using health::well;

/// The catalogue in the user's language or else in English, which need not be there.
std::string catalogueFile(ExaminedServer& server)
{
    std::string folder = getInstalledFolderPath(server.context());
    // The tool puts a separator behind the folder, whether or not it ends in one.
    if (!folder.empty() && folder.back() == '\\') folder.pop_back();
    std::string file =
        mdlDiagnosticGrids::cataloguePath(folder, userLanguageCode(server.context()));
    if (server.files().fileExists(file)) return file;
    return mdlDiagnosticGrids::cataloguePath(folder, "ENU");
}

/// Null where the file is not there or is no XML.
std::unique_ptr<XmlDocument> loaded(ExaminedServer& server, const std::string& file)
{
    auto document = server.context().platform.xml.newDocument();
    return document->load(file) ? std::move(document) : nullptr;
}

std::set<std::string> componentsOf(const XmlDocument& catalogue)
{
    std::set<std::string> names;
    for (const auto& grid : catalogue.selectNodes("DiagnosticGrids/DiagnosticGrid"))
        if (auto name = grid->attribute("name")) names.insert(*std::move(name));
    return names;
}

HealthReport lookAtCatalogue(ExaminedServer& server)
{
    const std::string file = catalogueFile(server);
    if (!server.files().fileExists(file))
        return lacking(HealthState::missing, {noFile, {file}}, copyCatalogue);
    server.files().openForReading(file); // what may not be read is no damage
    const auto document = loaded(server, file);
    if (!document) return lacking(HealthState::damaged, {badXml, {file}}, copyCatalogue);
    if (componentsOf(*document).empty())
        return lacking(HealthState::damaged, {emptyCatalogue, {file}}, copyCatalogue);
    return well({plain, {file}});
}

/// Names of which none stands in `known`, each once.
std::vector<std::string> strangersIn(const std::set<std::string>& names,
                                     const std::set<std::string>& known)
{
    std::vector<std::string> strangers;
    std::set_difference(names.begin(), names.end(), known.begin(), known.end(),
                        std::back_inserter(strangers));
    return strangers;
}

std::set<std::string> gridOf(const ExaminedServer& server)
{
    return {server.gridComponents->begin(), server.gridComponents->end()};
}

HealthReport lookAtCatalogueComponents(ExaminedServer& server)
{
    if (!server.gridComponents) return notLookedAt(afterAnother, {std::string(flags)});
    const auto document = loaded(server, catalogueFile(server));
    const auto told = document ? componentsOf(*document) : std::set<std::string>();
    if (told.empty()) return notLookedAt(afterAnother, {std::string(catalogue)});
    const auto untold = strangersIn(gridOf(server), told);
    if (!untold.empty())
        return lacking(HealthState::missing, {notInCatalogue, {listed(untold)}}, copyCatalogue);
    return well({components, {std::to_string(server.gridComponents->size())}});
}

/// What the definition files hold, as far as they are definitions.
struct Definitions {
    std::size_t files = 0;
    std::size_t traces = 0;
    std::vector<std::string> bad; ///< names of files that are none
    std::set<std::string> components;
};

Definitions definitionsOf(ExaminedServer& server)
{
    Definitions all;
    const std::string folder = server.besideTool(toolFiles::definitionsFolder) + "\\";
    for (const std::string& name : server.files().matching(folder + "HT*.xml")) {
        ++all.files;
        const auto document = loaded(server, folder + name);
        const XmlElementPtr group = document ? document->selectSingleNode("GA") : nullptr;
        if (!group || !group->attribute("NAME")) {
            all.bad.push_back(name);
            continue;
        }
        for (const auto& trace : group->selectNodes("TRACE")) {
            ++all.traces;
            for (const auto& diag : trace->selectNodes("DIAG"))
                if (auto component = diag->attribute("GROUP"))
                    all.components.insert(*std::move(component));
        }
    }
    return all;
}

HealthReport lookAtDefinitions(ExaminedServer& server)
{
    const Definitions all = definitionsOf(server);
    if (all.files == 0)
        return lacking(HealthState::missing,
                       {noDefinitions, {server.besideTool(toolFiles::definitionsFolder)}},
                       copyDefinitions);
    if (!all.bad.empty())
        return lacking(HealthState::damaged, {badDefinitions, {listed(all.bad)}}, copyDefinitions);
    return well({macroTraces, {std::to_string(all.traces)}});
}

/// A macro trace sets no level of a component that the server does not have.
HealthReport lookAtDefinitionComponents(ExaminedServer& server)
{
    if (!server.gridComponents) return notLookedAt(afterAnother, {std::string(flags)});
    const Definitions all = definitionsOf(server);
    if (all.traces == 0) return notLookedAt(afterAnother, {std::string(definitions)});
    const auto strangers = strangersIn(all.components, gridOf(server));
    if (!strangers.empty())
        return lacking(HealthState::missing, {notInGrid, {listed(strangers)}},
                       definitionsOfVersion);
    return well({components, {std::to_string(all.components.size())}});
}

} // namespace

std::vector<HealthCheck> ofDescriptions()
{
    return {
        {"catalogue", catalogue, true, lookAtCatalogue},
        {"catalogue.components", catalogueComponents, false, lookAtCatalogueComponents},
        {"definitions", definitions, true, lookAtDefinitions},
        {"definitions.components", definitionComponents, false, lookAtDefinitionComponents},
    };
}

} // namespace healthChecks
