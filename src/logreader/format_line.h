#pragma once

#include <string>
#include <string_view>

struct ToolContext;

/// The readable form of the server's raw log lines. Lines are bytes as the log holds them.
///
/// Nothing here raises: an error of the formatter is logged in the tool's own log. The routines are
/// not traced.
namespace mdlDiagnostics {

/// The readable form of a raw line: what the server's formatter makes of its first 510 bytes, a
/// blank, and the bytes behind them. The empty text for a line of fewer than 20 bytes; a blank and
/// the tail when the formatter fails.
std::string formatLineSafe(ToolContext& tool, std::string_view rawLine);

/// The same into a text whose room is used again. `rawLine` must not lie in `formatted`. False for
/// a line that has none of the forms that the formatter knows, so that its fields will be empty.
bool formatLineSafe(ToolContext& tool, std::string_view rawLine, std::string& formatted);

} // namespace mdlDiagnostics
