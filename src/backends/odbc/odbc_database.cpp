#include "backends/odbc/odbc_database.h"

#include "backends/odbc/command.h"
#include "backends/odbc/connection_string.h"
#include "backends/odbc/recordset.h"
#include "backends/odbc/session.h"
#include "runtime/run_time_error.h"

#include <utility>

namespace {

std::string ownConnectionString(const std::string& toolsOwn, const std::string& user,
                                const std::string& password)
{
    const auto driver = newestServerDriver(installedDrivers());
    if (!driver)
        throw RunTimeError(databaseErrors::unspecified,
                           "No driver for the server's database is installed: none is called " +
                               std::string(serverDriverNames) + ".");
    return odbcConnectionString(toolsOwn, *driver, user, password);
}

} // namespace

OdbcDatabase::OdbcDatabase(std::optional<std::string> source)
    : OdbcDatabase(std::move(source), OdbcPatience{})
{}

OdbcDatabase::OdbcDatabase(std::optional<std::string> source, const OdbcPatience& patience)
    : source_(std::move(source)), patience_(std::make_unique<OdbcPatience>(patience)),
      use_(OdbcUse::change)
{}

OdbcDatabase::~OdbcDatabase() = default;

void OdbcDatabase::openFor(OdbcUse use)
{
    use_ = use;
}

std::unique_ptr<OdbcDatabase> OdbcDatabase::another() const
{
    return std::make_unique<OdbcDatabase>(source_, *patience_);
}

int OdbcDatabase::state() const
{
    return session_ && session_->answers() ? 1 : 0;
}

void OdbcDatabase::open(const std::string& connectionString, const std::string& user,
                        const std::string& password)
{
    if (state() != 0) throw RunTimeError(databaseErrors::alreadyOpen);
    session_.reset();
    errors_ = 1;
    session_ = std::make_shared<OdbcSession>(
        source_ ? connectionStringOfSource(*source_, installedDrivers())
                : ownConnectionString(connectionString, user, password),
        use_, *patience_);
    errors_ = 0;
}

std::unique_ptr<DatabaseRecordset> OdbcDatabase::openRecordset(const std::string& query,
                                                               CursorKind cursor, LockKind)
{
    return std::make_unique<OdbcRecordset>(session(), query, cursor);
}

std::unique_ptr<DatabaseCommand> OdbcDatabase::createCommand()
{
    return std::make_unique<OdbcCommand>(*this);
}

std::shared_ptr<OdbcSession> OdbcDatabase::session() const
{
    if (!session_ || session_->isBroken()) throw RunTimeError(runTimeErrors::connectionClosed);
    return session_;
}
