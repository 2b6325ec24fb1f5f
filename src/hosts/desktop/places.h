#pragma once

#include <string>

/// Where things lie on the machine.
namespace places {

/// The site that is opened when none is named: `$ORVAN_SITE`, or the one in the user's data folder.
std::string defaultSite();

/// What ships with the tool; empty when it is not where the program expects it.
std::string installedData();

} // namespace places
