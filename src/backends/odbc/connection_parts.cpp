#include "backends/odbc/connection_parts.h"

#include "platform/database.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <algorithm>

namespace {

[[noreturn]] void fail()
{
    throw RunTimeError(databaseErrors::unspecified,
                       "The connection string is not written as \"Key=Value;Key=Value\".");
}

/// Takes a value in braces, with two for one of its own, off the front.
std::string takenBraced(std::string_view& rest)
{
    std::string value;
    for (rest.remove_prefix(1); !rest.empty(); rest.remove_prefix(1)) {
        if (rest.front() == '}') {
            if (rest.substr(0, 2) != "}}") break;
            rest.remove_prefix(1);
        }
        value += rest.front();
    }
    if (rest.empty()) fail();
    rest.remove_prefix(1);
    return value;
}

std::string_view takenUntil(char end, std::string_view& rest)
{
    const auto taken = rest.substr(0, rest.find(end));
    rest.remove_prefix(taken.size());
    return trim(taken);
}

/// Whether a value may stand behind its key without braces. A driver that is older than the braces
/// takes them for letters, so they stand only where they have to.
bool isPlain(const std::string& value)
{
    return value.find_first_of("[]{},;?*=!@") == std::string::npos && trim(value) == value;
}

} // namespace

std::vector<ConnectionPart> connectionParts(std::string_view rest)
{
    std::vector<ConnectionPart> parts;
    for (rest = trim(rest); !rest.empty(); rest = trim(rest)) {
        if (rest.front() == ';') {
            rest.remove_prefix(1);
            continue;
        }
        const std::string key(trim(rest.substr(0, rest.find('='))));
        rest.remove_prefix(std::min(rest.find('='), rest.size()));
        if (rest.empty() || key.empty() || key.find(';') != std::string::npos) fail();
        rest.remove_prefix(1);
        rest = rest.substr(std::min(rest.find_first_not_of(' '), rest.size()));
        const bool braced = !rest.empty() && rest.front() == '{';
        parts.push_back({key, braced ? takenBraced(rest) : std::string(takenUntil(';', rest))});
        if (!takenUntil(';', rest).empty()) fail();
    }
    return parts;
}

std::string valueOf(const std::vector<ConnectionPart>& parts, std::string_view key)
{
    for (const auto& part : parts)
        if (equalIgnoringCase(part.key, key)) return part.value;
    return {};
}

std::string connectionStringOf(const std::vector<ConnectionPart>& parts)
{
    std::string result;
    for (const auto& [key, value] : parts)
        result += (result.empty() ? "" : ";") + key + "=" +
                  (isPlain(value) ? value : "{" + replaceAll(value, "}", "}}") + "}");
    return result;
}
