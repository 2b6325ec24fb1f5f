#pragma once

#include "hosts/cli/open_tool.h"

#include "platform/xml.h"

#include <optional>
#include <string>
#include <vector>

/// What the server of a site knows by name, for a look at a command's arguments before the tool
/// starts. Looking leaves the site as it is.
namespace cli::knownNames {

/// A macro trace by the names under which the wizard's tree shows it.
struct ShownTrace {
    std::string group;
    std::string trace;
    XmlElementPtr element;
};

/// The macro traces of a catalogue, in the order of the tree. What has no name is shown by the one
/// that was read before it.
std::vector<ShownTrace> shownTraces(const XmlDocument& catalogue);

struct MacroTraces {
    std::vector<std::string> shown;      ///< "GROUP - TRACE" of each that the wizard shows
    std::vector<std::string> passedOver; ///< files that are no definitions, by name
};

MacroTraces macroTraces(ToolContext& context);

/// The components of the diagnostic grid, without the blanks around their names; nothing where the
/// database can't be asked, which is for the command to tell.
std::optional<std::vector<std::string>> components(OpenTool& tool);

/// The path of the catalogue of level texts where the one that the tool holds tells of no
/// component, as it is missing or can't be read; absent where it does. To be asked once the tool
/// holds one: after `showsLevel`, or after its start.
std::optional<std::string> unreadCatalogue(OpenTool& tool);

/// The components that the catalogue of level texts tells of, with their levels that are more than
/// placeholders, in its order; none where there is no catalogue. It is the one that the tool starts
/// with.
struct ShownLevels {
    std::string component;
    std::vector<int> levels;
};
std::vector<ShownLevels> shownLevels(ToolContext& context);

/// Whether the catalogue of level texts has a level that is more than a placeholder. The catalogue
/// that is looked at is the one that the tool starts with.
bool showsLevel(OpenTool& tool, const std::string& component, int level);

} // namespace cli::knownNames
