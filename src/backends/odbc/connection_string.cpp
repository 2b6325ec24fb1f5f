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

/// What a site may say of its source, in any case. A site comes from anywhere, and what it says
/// must reach the driver as it was looked at here.
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

/// What it may say beside a name of this machine's own: who asks. The rest is for whoever made that
/// source to say.
constexpr std::array<std::string_view, 6> keysBesideAName = {"DSN",      "UID", "User",
                                                             "Username", "PWD", "Password"};

/// Not all drivers know braces: one that doesn't takes the parts of such a value for keys of
/// theirs.
constexpr std::string_view separators = ";{}";

/// How long the driver of a file waits while another program holds the file, in milliseconds. Its
/// own is ten times that.
constexpr std::string_view fileWait = "10000";

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

void requireWhole(const std::string& value)
{
    if (value.find_first_of(separators) != std::string::npos)
        fail("No value of a site's source may hold a semicolon or a brace.");
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
        requireWhole(value);
        seen.push_back(key);
    }
    if (has(seen, "DSN"))
        for (const auto& key : seen)
            if (!has(keysBesideAName, key))
                fail("A site may not say \"" + key + "\" of a source that this machine knows.");
    if (valueOf(parts, "Driver").empty() && valueOf(parts, "DSN").empty())
        fail("The source names neither a driver nor a source that this machine knows.");
}

/// Whether the driver reaches a file.
bool opensFiles(const std::string& driver)
{
    return beginsWith(lowerCase(driver), "sqlite");
}

/// Has the driver of a file make none where none is, wait no longer than a person does, and take no
/// file of the folder that the program happens to run in.
void boundFileDriver(std::vector<ConnectionPart>& parts)
{
    const std::string file = valueOf(parts, "Database");
    const bool whole = file.starts_with('/') || file.starts_with("\\\\") ||
                       (file.size() > 2 && file[1] == ':' && (file[2] == '/' || file[2] == '\\'));
    if (!whole) fail("The source's database is not named by its whole path.");
    std::erase_if(parts, [](const auto& part) {
        return equalIgnoringCase(part.key, "NoCreat") || equalIgnoringCase(part.key, "Timeout");
    });
    parts.insert(parts.end(), {{"NoCreat", "1"}, {"Timeout", std::string(fileWait)}});
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
    if (source.find('=') == std::string::npos) {
        requireWhole(source);
        return connectionStringOf({{"DSN", source}});
    }
    auto parts = connectionParts(source);
    requirePermitted(parts, installedDrivers);
    if (opensFiles(valueOf(parts, "Driver"))) boundFileDriver(parts);
    return connectionStringOf(parts);
}
