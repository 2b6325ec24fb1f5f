#pragma once

#include <string>
#include <string_view>
#include <vector>

struct ToolContext;

/// The language of the server's messages in the Windows event log: its event sources register
/// message files below a folder of that language, `...\Localize\Messaging\ENU\...`.
///
/// A language is the three-letter name of such a folder. Nothing here raises; what fails is logged.
namespace mdlLanguage {

/// What stands before the language in a path.
constexpr std::string_view messagingFolder = "Localize\\Messaging\\";

/// Names of the sources of the Application log whose "EventMessageFile" lies below
/// "Localize\Messaging" (case-sensitive), in the registry's order.
std::vector<std::string> getEventLogKeys(ToolContext& tool);

/// The three characters behind the first "Localize\Messaging\" of a path. In a path without it
/// they are those from the 19th on.
std::string determineCurrentLanguage(ToolContext& tool, const std::string& messageFile);

/// The path with the three characters of its language swapped for `language`. In a path without
/// "Localize\Messaging\" 18 characters are kept and 3 are dropped all the same.
std::string replaceLanguage(ToolContext& tool, const std::string& path,
                            const std::string& language);

/// Swaps the language of "EventMessageFile" and "CategoryMessageFile" of each source, and writes
/// those that differ then; the empty language changes nothing. A key that may not be written to is
/// passed over.
void changeEventLogLanguage(ToolContext& tool, const std::string& language,
                            const std::vector<std::string>& keys);

/// Remembers the language that comes back when the tool is unloaded.
void recordOriginalLanguage(ToolContext& tool, const std::string& language);

/// The language that was remembered; the empty text for none. May raise.
std::string originalLanguage(ToolContext& tool);

/// The "EventMessageFile" of a source. May raise.
std::string eventMessageFile(ToolContext& tool, const std::string& source);

/// Names of the folders of messages that the server installed, in the order of the file system.
/// Raises 76 (path not found), 70.
std::vector<std::string> installedLanguages(ToolContext& tool);

} // namespace mdlLanguage
