#include "hosts/common/tool_on_site.h"

#include "core/trapped_error_listener.h"
#include "server/configuration_database.h"
#include "server/diagnostic_grid.h"
#include "support/fakes/fake_desktop.h"
#include "support/places.h"
#include "support/postgres_server.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace {

constexpr const char* maximum = "System.LogMgr.MaxDiagnosticMegabytesSaved";

class HostOfDatabase final : public ToolOnSite {
public:
    HostOfDatabase(const std::string& folder, SiteUse use, Desktop& desktop)
        : ToolOnSite(folder, "", HostFacts{}, use, desktop)
    {}

    using ToolOnSite::load;
    using ToolOnSite::startChanges;
    using ToolOnSite::unload;
};

PostgresServer& server()
{
    static PostgresServer server;
    return server;
}

/// The tool on a site whose directory database is on a server.
struct ToolOnServer : testing::Test {
    ToolOnServer()
    {
        server().reset();
        server().runFile(checkout::data + std::string("/server/postgres.sql"));
        server().run("INSERT INTO tbl_ConfigurationValue VALUES('" + std::string(maximum) +
                     "','400',3);"
                     "INSERT INTO tbl_LoggerDiagnosticGrid VALUES('{A}','Codec',1,1)");
        folder.makeFolder("drive_c");
        folder.write("site.ini", "[database]\nodbc = " + server().connectionString());
    }

    static void endConnections()
    {
        server().run("SELECT pg_terminate_backend(pid) FROM pg_stat_activity"
                     " WHERE pid <> pg_backend_pid() AND application_name <> 'psql'");
    }

    static std::string flags() { return server().run("SELECT Flags FROM vw_LoggerDiagnosticGrid"); }

    TemporaryFolder folder;
    FakeDesktop desktop;
};

TEST_F(ToolOnServer, ReadsAValueWhoseConnectionTheServerEndedAsIfNothingHadHappened)
{
    HostOfDatabase host(folder.path(), SiteUse::look, desktop);
    host.load();
    EXPECT_EQ("", host.databaseFailure());
    EXPECT_EQ(Value(400), mdlOrvanDatabase::GetConfigurationSetting(host.context(), maximum));
    endConnections();
    std::vector<std::string> errors;
    const TrappedErrorListener listener(host.context(),
                                        [&](const RunTimeError& error, std::string_view) {
                                            errors.push_back(error.description());
                                        });
    EXPECT_EQ(Value(400), mdlOrvanDatabase::GetConfigurationSetting(host.context(), maximum));
    EXPECT_THAT(errors, testing::IsEmpty());
    EXPECT_EQ(1, host.database().state());
    host.unload();
}

TEST_F(ToolOnServer, GivesUpReadingFromAServerThatStaysAway)
{
    HostOfDatabase host(folder.path(), SiteUse::look, desktop);
    host.load();
    server().stop();
    EXPECT_EQ(Value(Null{}), mdlOrvanDatabase::GetConfigurationSetting(host.context(), maximum));
    EXPECT_EQ(0, mdlOrvanDatabase::getFlags(host.context(), "Codec", 0));
    EXPECT_EQ(0, host.database().state());
    server().start();
    EXPECT_EQ(Value(400), mdlOrvanDatabase::GetConfigurationSetting(host.context(), maximum));
    host.unload();
}

TEST_F(ToolOnServer, AWriteToAConnectionThatTheServerEndedFailsAndIsOnlyLogged)
{
    HostOfDatabase host(folder.path(), SiteUse::look, desktop);
    host.startChanges();
    host.load();
    mdlOrvanDatabase::SetFlags(host.context(), "Codec", -2147483647 - 1);
    EXPECT_EQ("-2147483648", flags());
    endConnections();
    mdlOrvanDatabase::SetFlags(host.context(), "Codec", 5);
    EXPECT_EQ("-2147483648", flags());
    host.unload();
}

TEST_F(ToolOnServer, OneThatLooksWritesNothingThere)
{
    HostOfDatabase host(folder.path(), SiteUse::look, desktop);
    host.load();
    mdlOrvanDatabase::SetFlags(host.context(), "Codec", 5);
    EXPECT_EQ("1", flags());
    const auto another = host.database().anotherToLook();
    EXPECT_EQ(0, another->state());
    another->open("", "", "");
    EXPECT_EQ(1, another->state());
    host.unload();
}

} // namespace
