#pragma once

#include <cstdint>
#include <string>

/// Statements that change the grid of a contract's server behind the back of who is connected.
namespace gridStatements {

inline std::string quoted(const std::string& text)
{
    std::string result = "'";
    for (const char letter : text) result += letter == '\'' ? "''" : std::string(1, letter);
    return result + "'";
}

inline std::string settingFlags(const std::string& name, std::int32_t flags)
{
    return "UPDATE grid SET Flags = " + std::to_string(flags) + " WHERE Name = " + quoted(name);
}

inline std::string adding(const std::string& name)
{
    return "INSERT INTO grid VALUES(" + quoted(name) + "," + quoted("id-" + name) + ",0,0)";
}

inline std::string removing(const std::string& name)
{
    return "DELETE FROM grid WHERE Name = " + quoted(name);
}

} // namespace gridStatements
