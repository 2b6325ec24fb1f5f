#pragma once

#include <string>

/// Where things lie on the machine.
namespace places {

/// `$ORVAN_SITE`; the empty text where it is not set.
std::string siteOfEnvironment();

/// The site in the user's data folder; the empty text where the environment names no such folder.
std::string usualSite();

/// The site that is opened when none is named: `$ORVAN_SITE`, or the usual one.
std::string defaultSite();

/// The folder of what ships with the tool: the program's own where that holds it, as on Windows;
/// beside it when it is built, below share/ when it is installed. The empty text when there is
/// none.
std::string installedData();

/// A path as a person types it on a command line: a drive's path stays, as does the empty text;
/// another one is this machine's own, made whole from the present folder.
std::string wholePath(const std::string& typed);

} // namespace places
