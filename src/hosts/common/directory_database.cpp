#include "hosts/common/directory_database.h"

#include "backends/odbc/odbc_use.h"
#include "backends/site/database/sqlite_handle.h"

namespace {

std::unique_ptr<OdbcDatabase> serverOf(const SiteSettings& settings)
{
    return settings.odbc ? std::make_unique<OdbcDatabase>(settings.odbc) : nullptr;
}

DatabaseConnection& eitherOf(OdbcDatabase* server, SiteDatabase& file)
{
    if (server) return *server;
    return file;
}

} // namespace

DirectoryDatabase::DirectoryDatabase(Site& site)
    : file_(site.database()), path_(site.databaseFile()), server_(serverOf(site.settings())),
      inUse_(eitherOf(server_.get(), file_))
{
    openFor(ServerUse::look);
}

void DirectoryDatabase::openFor(ServerUse use)
{
    if (server_) server_->openFor(use == ServerUse::look ? OdbcUse::look : OdbcUse::change);
}

std::unique_ptr<DatabaseConnection> DirectoryDatabase::anotherToLook() const
{
    if (server_) {
        auto another = server_->another();
        another->openFor(OdbcUse::look);
        return another;
    }
    std::unique_ptr<SiteDatabase> another(new SiteDatabase(file_.another())); // it does not move
    another->openFor(DatabaseUse::look);
    return another;
}

void DirectoryDatabase::waitAsOneRun()
{
    file_.waitAsOneRun(); // all connections share the patience
}

void DirectoryDatabase::holdCalls()
{
    if (!server_) file_.holdCalls();
}

void DirectoryDatabase::letCallsGo()
{
    if (!server_) file_.letCallsGo();
}

void DirectoryDatabase::open(const std::string& connectionString, const std::string& user,
                             const std::string& password)
{
    inUse_.open(connectionString, user, password);
}

std::unique_ptr<DatabaseRecordset>
DirectoryDatabase::openRecordset(const std::string& query, CursorKind cursor, LockKind lock)
{
    return inUse_.openRecordset(query, cursor, lock);
}

std::unique_ptr<DatabaseCommand> DirectoryDatabase::createCommand()
{
    return inUse_.createCommand();
}
