#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The driver to reach the server's database with, of those that are installed: the newest one that
/// is kept up, else the newest of the family before it, else the one that comes with the system.
std::optional<std::string> newestServerDriver(const std::vector<std::string>& installed);

/// What `newestServerDriver` looks for, for a sentence.
constexpr std::string_view serverDriverNames =
    "\"ODBC Driver NN for SQL Server\", \"SQL Server Native Client NN\" or \"SQL Server\"";

/// The connection string of ODBC that means what the tool's own does ("Provider=…;Initial
/// Catalog=…;Data Source=…"). A user and a password count where the string does not say that the
/// administrator's own account is to be used. Raises -2147467259 for a string that names no server.
std::string odbcConnectionString(std::string_view toolsOwn, const std::string& driver,
                                 const std::string& user, const std::string& password);

/// What a site says of its source as a connection string: one where there is a "=" in it, else the
/// name of a source that the machine knows.
///
/// A site may come from anywhere. So it may choose among the drivers that the machine has, by their
/// names, and among the settings that say where the server is and who asks; it may not name a file
/// to load or to write. A file that is to be the database is never made.
/// Raises -2147467259, with a sentence, for anything else.
std::string connectionStringOfSource(const std::string& source,
                                     const std::vector<std::string>& installedDrivers);
