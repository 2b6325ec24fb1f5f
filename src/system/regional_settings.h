#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// The time zone that the machine is set to, as a POSIX TZ text such as `PST8PDT,M3.2.0,M11.1.0`;
/// nothing where the system keeps it in files and variables, as others than Windows do.
std::optional<std::string> timeZoneSetting();

/// The identifier of the user's language, such as 1036; nothing where a variable tells it.
std::optional<std::int32_t> languageSetting();
