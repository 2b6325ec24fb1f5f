#pragma once

#include <cstdint>
#include <optional>
#include <string>

struct ToolContext;

/// The manual. Nothing here raises; the eleventh error of a call ends it.
namespace mdlHTMLHelp {

/// Full path of the help file beside the tool: that of the user's default language, else the
/// English one, else the one without a language in its name, which is not looked for.
std::string getHelpFileName(ToolContext& tool);

/// Shows a help file at its first page, or at a topic. The window comes to `g_hwndHelp`, 0 when
/// nothing is shown; whose window it belongs to, the host knows.
void showCHMHelp(ToolContext& tool, const std::string& file,
                 std::optional<std::int32_t> topic = std::nullopt);

} // namespace mdlHTMLHelp
