#include "backends/odbc/connection_string.h"

#include "backends/odbc/connection_parts.h"
#include "platform/database.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace {

/// How new a driver is: its family, then its number.
using Rank = std::pair<int, int>;

constexpr std::string_view presentStart = "ODBC Driver ";
constexpr std::string_view presentEnd = " for SQL Server";
constexpr std::string_view formerStart = "SQL Server Native Client";
constexpr std::string_view oldest = "SQL Server";

/// Lengths are counted in 16 bits behind it, and drivers hold parts of it in fixed places.
constexpr std::size_t longestSource = 2000;

int leadingNumber(std::string_view text)
{
    int number = 0;
    text = trim(text);
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

std::optional<Rank> rankOf(std::string_view driver)
{
    const auto startsWith = [&](std::string_view start) {
        return equalIgnoringCase(driver.substr(0, start.size()), start);
    };
    const auto endsWith = [&](std::string_view end) {
        return driver.size() >= end.size() &&
               equalIgnoringCase(driver.substr(driver.size() - end.size()), end);
    };
    if (startsWith(presentStart) && endsWith(presentEnd))
        return Rank(2, leadingNumber(driver.substr(presentStart.size())));
    if (startsWith(formerStart)) return Rank(1, leadingNumber(driver.substr(formerStart.size())));
    if (equalIgnoringCase(driver, oldest)) return Rank(0, 0);
    return std::nullopt;
}

/// What a site may say of its source, in any case.
constexpr std::array<std::string_view, 30> permittedKeys = {"Driver",
                                                            "DSN",
                                                            "Server",
                                                            "Servername",
                                                            "Address",
                                                            "Addr",
                                                            "Port",
                                                            "Database",
                                                            "DB",
                                                            "UID",
                                                            "User",
                                                            "Username",
                                                            "PWD",
                                                            "Password",
                                                            "Trusted_Connection",
                                                            "Encrypt",
                                                            "TrustServerCertificate",
                                                            "HostNameInCertificate",
                                                            "SSLmode",
                                                            "Timeout",
                                                            "LoginTimeout",
                                                            "ConnectTimeout",
                                                            "NoCreat",
                                                            "BoolsAsChar",
                                                            "Description",
                                                            "APP",
                                                            "WSID",
                                                            "Language",
                                                            "TDS_Version",
                                                            "ReadOnly"};

[[noreturn]] void fail(const std::string& sentence)
{
    throw RunTimeError(databaseErrors::unspecified, sentence);
}

template <typename Names>
bool has(const Names& names, std::string_view name)
{
    return std::any_of(names.begin(), names.end(),
                       [&](const auto& each) { return equalIgnoringCase(each, name); });
}

void requirePermitted(const std::vector<ConnectionPart>& parts,
                      const std::vector<std::string>& installedDrivers)
{
    std::vector<std::string> seen;
    for (const auto& [key, value] : parts) {
        if (!has(permittedKeys, key)) fail("A site's source may not say \"" + key + "\".");
        if (has(seen, key)) fail("The source says \"" + key + "\" twice.");
        if (equalIgnoringCase(key, "Driver") && !has(installedDrivers, value))
            fail("No driver on this machine is called \"" + value + "\".");
        seen.push_back(key);
    }
    if (valueOf(parts, "Driver").empty() && valueOf(parts, "DSN").empty())
        fail("The source names neither a driver nor a source that this machine knows.");
}

/// Whether the driver reaches a file, which it would make where there is none.
bool makesFiles(const std::string& driver)
{
    return beginsWith(lowerCase(driver), "sqlite");
}

} // namespace

std::optional<std::string> newestServerDriver(const std::vector<std::string>& installed)
{
    std::optional<std::string> newest;
    std::optional<Rank> best;
    for (const std::string& driver : installed)
        if (const auto rank = rankOf(driver); rank > best) {
            best = rank;
            newest = driver;
        }
    return newest;
}

std::string odbcConnectionString(std::string_view toolsOwn, const std::string& driver,
                                 const std::string& user, const std::string& password)
{
    const auto own = connectionParts(toolsOwn);
    const std::string server = valueOf(own, "Data Source");
    if (server.empty()) fail("The connection string names no server.");
    std::vector<ConnectionPart> parts = {{"Driver", driver}, {"Server", server}};
    if (const std::string catalog = valueOf(own, "Initial Catalog"); !catalog.empty())
        parts.push_back({"Database", catalog});
    if (!valueOf(own, "Integrated Security").empty() || user.empty())
        parts.push_back({"Trusted_Connection", "yes"});
    else
        parts.insert(parts.end(), {{"UID", user}, {"PWD", password}});
    // The newest drivers check the server's certificate, and the instance of this very machine has
    // one of its own making.
    parts.push_back({"TrustServerCertificate", "yes"});
    return connectionStringOf(parts);
}

std::string connectionStringOfSource(const std::string& source,
                                     const std::vector<std::string>& installedDrivers)
{
    if (source.size() > longestSource) fail("The source is too long.");
    if (source.find('=') == std::string::npos) return connectionStringOf({{"DSN", source}});
    auto parts = connectionParts(source);
    requirePermitted(parts, installedDrivers);
    std::erase_if(parts, [](const auto& part) { return equalIgnoringCase(part.key, "NoCreat"); });
    if (makesFiles(valueOf(parts, "Driver"))) parts.push_back({"NoCreat", "1"});
    return connectionStringOf(parts);
}
