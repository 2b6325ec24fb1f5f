#pragma once

#include <optional>
#include <string>

/// The value of a variable of the program's environment, in UTF-8; nothing where it is not set.
std::optional<std::string> environmentVariable(const char* name);

/// Where the user's programs keep their data: a path of the machine.
std::string userDataFolder();
