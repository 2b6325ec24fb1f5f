#include "hosts/common/health/examined_server.h"
#include "hosts/common/health/health_checks.h"
#include "hosts/common/health/health_sentences.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "system/file_facts.h"

namespace healthChecks {

namespace {

using namespace healthSentences;
using health::lacking;
using health::notLookedAt;
using health::well;

constexpr const char* gridView = "vw_LoggerDiagnosticGrid";
constexpr const char* gridProcedure = "csp_LoggerDiagnosticGridModify";
constexpr const char* settingsView = "vw_ConfigurationValue";
constexpr const char* settingsProcedure = "csp_ConfigurationModify";

/// The settings that the tool shows and writes back, and the type that it asks each for.
struct Setting {
    const char* name;
    std::int32_t type;
};
constexpr Setting settingsInUse[] = {
    {"System.LogMgr.MaxDiagnosticMegabytesSaved", valueType::integer},
    {"System.LogMgr.WritingEnabled", valueType::boolean},
};

/// Why a file of the machine can't be the database.
std::optional<HealthReport> troubleOfFile(const std::string& file, const RunTimeError& error)
{
    if (!unfollowedFactsOf(file))
        return lacking(HealthState::missing, {noDatabaseFile, {file}}, restoreDatabase);
    for (const char* said : {"not a database", "malformed"})
        if (error.description().find(said) != std::string::npos)
            return lacking(HealthState::damaged, {databaseNotOpened, {health::clauseOf(error)}},
                           mendDatabase);
    return std::nullopt;
}

HealthReport lookAtDatabase(ExaminedServer& server)
try {
    server.directory.open();
    return well({canBeRead, {}});
} catch (const RunTimeError& error) {
    const std::string file = server.directory.file();
    if (!file.empty())
        if (auto trouble = troubleOfFile(file, error)) return *std::move(trouble);
    return lacking(HealthState::unusable, {databaseNotOpened, {health::clauseOf(error)}},
                   reachDatabase);
}

/// Why a view could not be read.
HealthReport troubleOfView(const char* view, const RunTimeError& error)
{
    if (error.number() == databaseErrors::noSuchTable)
        return lacking(HealthState::missing, {noView, {view}}, mendDatabase);
    return lacking(HealthState::damaged, {unreadView, {view, health::clauseOf(error)}},
                   mendDatabase);
}

/// Whether the tool can work with a row of the diagnostic grid: name, identity and both words.
bool isUsable(const ExaminedDatabase::Row& row)
try {
    for (std::size_t word : {2U, 3U}) valueAsInteger32(row[word]);
    return !trim(valueAsText(row[0])).empty() && !valueAsText(row[1]).empty();
} catch (const RunTimeError&) {
    return false;
}

HealthReport lookAtFlags(ExaminedServer& server)
try {
    if (!server.directory.isOpen()) return notLookedAt(afterDatabase);
    const auto rows = server.directory.rows(
        "SELECT Name, ObjectId, Flags, DefaultFlags FROM vw_LoggerDiagnosticGrid",
        {"Name", "ObjectId", "Flags", "DefaultFlags"});
    if (rows.empty()) return lacking(HealthState::missing, {emptyView, {gridView}}, mendDatabase);
    std::vector<std::string> components;
    std::vector<std::string> bad;
    for (const auto& row : rows) {
        std::string name = isNull(row[0]) ? "" : std::string(trim(valueAsText(row[0])));
        if (!isUsable(row)) bad.push_back(name);
        components.push_back(std::move(name));
    }
    server.gridComponents = components;
    if (!bad.empty())
        return lacking(HealthState::damaged, {badRows, {gridView, health::listed(bad)}},
                       mendDatabase);
    return well({healthSentences::components, {std::to_string(components.size())}});
} catch (const RunTimeError& error) {
    return troubleOfView(gridView, error);
}

/// Whether a setting has a row that the tool can use: it writes back what it read, so that a value
/// it could not read would be replaced.
bool hasSetting(ExaminedServer& server, const Setting& setting)
{
    const auto rows = server.directory.rows(
        std::string("SELECT Value, Type FROM vw_ConfigurationValue WHERE FullName = '") +
            setting.name + "'",
        {"Value", "Type"});
    if (rows.empty()) return false;
    try {
        if (valueAsInteger32(rows[0][1]) != setting.type) return false;
        if (setting.type == valueType::boolean)
            valueAsBoolean(rows[0][0]);
        else
            valueAsInteger32(rows[0][0]);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

HealthReport lookAtSettings(ExaminedServer& server)
try {
    if (!server.directory.isOpen()) return notLookedAt(afterDatabase);
    for (const Setting& setting : settingsInUse)
        if (!hasSetting(server, setting))
            return lacking(HealthState::missing, {noSetting, {settingsView, setting.name}},
                           mendDatabase);
    return well({canBeRead, {}});
} catch (const RunTimeError& error) {
    return troubleOfView(settingsView, error);
}

/// Whether a trigger takes what is put into a view that stands for a procedure.
bool hasTrigger(ExaminedServer& server, const std::string& view)
{
    return !server.directory
                .rows("SELECT name FROM sqlite_master WHERE type = 'trigger' AND "
                      "lower(tbl_name) = '" +
                          lowerCase(view) + "'",
                      {"name"})
                .empty();
}

/// A procedure with the parameters that the tool assigns. It is not called.
HealthReport procedureReport(ExaminedServer& server, const char* procedure,
                             const std::vector<std::string>& parameters)
try {
    if (!server.directory.isOpen()) return notLookedAt(afterDatabase);
    const std::string missing = server.directory.missingParameter(procedure, parameters);
    if (!missing.empty())
        return lacking(HealthState::damaged, {noParameter, {procedure, missing}}, mendDatabase);
    if (server.directory.hasViewsForProcedures() && !hasTrigger(server, procedure))
        return lacking(HealthState::damaged, {deadProcedure, {procedure}}, mendDatabase);
    return well({plain, {procedure}});
} catch (const RunTimeError& error) {
    if (error.number() != databaseErrors::statementRefused || !server.directory.isOpen()) throw;
    return lacking(HealthState::missing, {noProcedure, {procedure}}, mendDatabase);
}

HealthReport lookAtChangeOfFlags(ExaminedServer& server)
{
    return procedureReport(server, gridProcedure,
                           {"@AuditAlias", "@AuditComponent", "@Name", "@ObjectId", "@Flags"});
}

HealthReport lookAtChangeOfSettings(ExaminedServer& server)
{
    return procedureReport(
        server, settingsProcedure,
        {"@AuditAlias", "@AuditComponent", "@FullName", "@ValueLong", "@ValueBool", "@ValueDate"});
}

} // namespace

std::vector<HealthCheck> ofDatabase()
{
    return {
        {"database", database, true, lookAtDatabase},
        {"database.flags", flags, true, lookAtFlags},
        {"database.change-flags", changeFlags, true, lookAtChangeOfFlags},
        {"database.settings", settings, true, lookAtSettings},
        {"database.change-settings", changeSettings, true, lookAtChangeOfSettings},
    };
}

} // namespace healthChecks
