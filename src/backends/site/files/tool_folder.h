#pragma once

#include "drives/site_paths.h"

#include <map>
#include <string>

/// Of what the tool finds beside it at run time, what the tool folder lacks and `installedData`, a
/// folder of the machine, has: by name, where it lies in `installedData`. Neither need be there; a
/// name that differs in case alone is there. A folder that may not be read gives nothing.
std::map<std::string, std::string> lackingInToolFolder(const SitePlace& toolFolder,
                                                       const std::string& installedData);

/// Copies to the tool folder what the tool finds there at run time, as far as it lies in
/// `installedData` and the folder lacks it: macro trace definitions, the blank trace database, the
/// cabinet maker, language catalogues and help. A name that differs in case alone is there. What
/// exists is left alone, a folder with whatever is in it, and what is copied appears whole; what a
/// program that was killed has left of its copying is removed. A missing `installedData` supplies
/// nothing, a missing tool folder is made with those above it. Where nobody may write, nothing is
/// copied. Raises 61, 57.
void supplyToolFolder(const SitePlace& toolFolder, const std::string& installedData);
