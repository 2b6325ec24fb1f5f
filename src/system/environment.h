#pragma once

#include <optional>
#include <string>

/// The value of a variable of the program's environment, in UTF-8; nothing where it is not set.
std::optional<std::string> environmentVariable(const char* name);

/// Where the user's programs keep their data: a whole path of the machine. The empty text where the
/// environment names no such folder.
std::string userDataFolder();

/// The same for what the user sets in them.
std::string userSettingsFolder();

/// The user's own folder, such as ~ stands for: a whole path, or the empty text.
std::string userFolder();

/// The locale that the user wants messages in, such as "fr_CA.UTF-8", and the variable that says
/// so: the first of LC_ALL, LC_MESSAGES and LANG that is not empty. Both are empty where none is
/// set.
struct MessageLocale {
    std::string name;
    std::string variable;
};
MessageLocale messageLocale();
