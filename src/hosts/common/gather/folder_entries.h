#pragma once

#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

/// What lies in a folder of this machine as far as it tells, nothing where there is no folder.
/// `failed` says why there may be more; it is cleared where all was listed.
std::vector<std::filesystem::directory_entry> entriesOf(const std::string& folder,
                                                        std::error_code& failed);
