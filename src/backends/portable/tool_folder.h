#pragma once

#include <map>
#include <string>

/// Of what the tool finds beside it at run time, what `toolFolder` lacks and `installedData` has:
/// by name, where it lies in `installedData`. Both are folders of the machine and need not be
/// there; a name that differs in case alone is there. A folder that may not be read gives nothing.
std::map<std::string, std::string> lackingInToolFolder(const std::string& toolFolder,
                                                       const std::string& installedData);

/// Copies to `toolFolder` what the tool finds there at run time, as far as it lies in
/// `installedData` and the folder lacks it: macro trace definitions, the blank trace database, the
/// cabinet maker, language catalogues and help. A name that differs in case alone is there. What
/// exists is left alone, a folder with whatever is in it, and what is copied appears whole. Both
/// are folders of the machine; a missing `installedData` supplies nothing, a missing `toolFolder`
/// is made with those above it. Where nobody may write, nothing is copied. Raises 61, 57.
void supplyToolFolder(const std::string& toolFolder, const std::string& installedData);
