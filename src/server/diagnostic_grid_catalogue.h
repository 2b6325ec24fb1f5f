#pragma once

#include <string>
#include <vector>

struct ToolContext;

namespace mdlDiagnosticGrids {

/// Where the server keeps the catalogue of a language, such as "ENU".
std::string cataloguePath(const std::string& installFolder, const std::string& language);

/// Loads the catalogue of level texts in the user's language, or else in English. A file that is
/// missing or malformed leaves an empty catalogue.
void openDiagGrids(ToolContext& tool);

/// A component's level texts; the index is the level. An unknown component is logged and has two
/// empty texts. A component without levels leaves an array without bounds: an empty list, and
/// asking for its bounds is error 9.
std::vector<std::string> EnumDiagnosticLevels(ToolContext& tool, const std::string& componentName);

/// A component's display text, or its name when the catalogue does not know it.
std::string GetDiagnosticLevelText(ToolContext& tool, const std::string& componentName);

} // namespace mdlDiagnosticGrids
