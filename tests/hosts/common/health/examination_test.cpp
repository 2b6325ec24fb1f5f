#include "hosts/common/health/examination.h"

#include "core/registry_store.h"
#include "hosts/common/health/health_sentences.h"
#include "runtime/run_time_error.h"
#include "support/test_tool.h"

#include <gmock/gmock.h>

#include <set>
#include <stdexcept>

namespace {

using testing::IsEmpty;

/// A connection to the same database as another one, with an account of what it was asked.
class SharedConnection : public DatabaseConnection {
public:
    explicit SharedConnection(FakeDatabase& database) : database_(database) {}

    int state() const override { return database_.state(); }
    void open(const std::string& text, const std::string& user,
              const std::string& password) override
    {
        database_.open(text, user, password);
    }
    int errorCount() const override { return database_.errorCount(); }
    std::unique_ptr<DatabaseRecordset> openRecordset(const std::string& query, CursorKind cursor,
                                                     LockKind lock) override
    {
        return database_.openRecordset(query, cursor, lock);
    }
    std::unique_ptr<DatabaseCommand> createCommand() override { return database_.createCommand(); }

private:
    FakeDatabase& database_;
};

class SharedDatabase final : public ServerDatabase {
public:
    explicit SharedDatabase(FakeDatabase& database) : database_(database), own_(database) {}

    void openFor(ServerUse use) override { uses.push_back(use); }
    std::unique_ptr<DatabaseConnection> anotherToLook() const override
    {
        return std::make_unique<SharedConnection>(database_);
    }
    int state() const override { return 0; }
    void open(const std::string&, const std::string&, const std::string&) override {}
    int errorCount() const override { return 0; }
    std::unique_ptr<DatabaseRecordset> openRecordset(const std::string& query, CursorKind cursor,
                                                     LockKind lock) override
    {
        return own_.openRecordset(query, cursor, lock);
    }
    std::unique_ptr<DatabaseCommand> createCommand() override { return own_.createCommand(); }

    std::vector<ServerUse> uses;

private:
    FakeDatabase& database_;
    SharedConnection own_;
};

/// A server of fakes.
class FakeServer final : public ServerAccess {
public:
    FakeServer(TestTool& tool, bool installed) : tool_(tool), database_(tool.database)
    {
        installed_ = installed;
    }

    Platform platform(Desktop&) override { return tool_.platform; }
    SharedDatabase& database() override { return database_; }
    CodePage codePage() const override { return windows1252(); }
    void startChanges() override { throw std::logic_error("a look changes nothing"); }
    bool writable() const override { return true; }
    bool isServers(const std::string&) const override { return true; }
    std::string machinePath(const std::string& path) override { return path; }
    std::string toolPath(const std::string& typed) override { return typed; }
    std::string name() const override { return "a fake"; }
    HeldTurn takeTurn(const std::function<void(const std::string&)>&) override
    {
        throw std::logic_error("a look takes no turn");
    }
    void exportEventsFor(CsvReader) override {}
    std::int64_t endOfEvents() const override { return 0; }
    std::vector<ReportedEvent> eventsSince(std::int64_t) const override { return {}; }
    std::optional<Sentence> lackOfServer() const override
    {
        if (installed_) return {};
        return Sentence{"Nothing is installed.", {}};
    }

private:
    TestTool& tool_;
    SharedDatabase database_;
    bool installed_;
};

struct Examination : testing::Test {
    std::map<std::string, Finding> examined()
    {
        std::map<std::string, Finding> byId;
        for (Finding& finding :
             health::examine([this] { return std::make_unique<FakeServer>(tool, installed); }))
            byId.emplace(finding.id, finding);
        return byId;
    }

    TestTool tool;
    bool installed = true;
};

TEST_F(Examination, OfABareMachineNamesEveryCheckOnceAndEndsForNone)
{
    std::set<std::string_view> ids;
    for (const Finding& finding :
         health::examine([this] { return std::make_unique<FakeServer>(tool, installed); })) {
        EXPECT_TRUE(ids.insert(finding.id).second) << finding.id;
        EXPECT_NE("", finding.subject);
        EXPECT_NE("", finding.report.detail.text()) << finding.id;
    }
    EXPECT_EQ(28u, ids.size());
}

TEST_F(Examination, SaysWhereNoServerIsInstalled)
{
    EXPECT_EQ(HealthState::ok, examined().at("server").report.state);
    installed = false;
    const auto found = examined();
    EXPECT_EQ(HealthState::missing, found.at("server").report.state);
    EXPECT_EQ(healthSentences::goToServer, found.at("server").report.remedy->pattern);
    EXPECT_NE(healthSentences::afterServer, found.at("database").report.detail.pattern)
        << "what is there is looked at all the same";
}

TEST_F(Examination, ACheckThatRaisesIsAFindingOfItsOwnAndTheOthersGoOn)
{
    tool.registry.withText(logManagerKey, logFolderValue, "C:\\Logs");
    tool.files.withFolder("C:\\Logs").failing("C:\\Logs", runTimeErrors::deviceIo);
    tool.database.withComponent("CallFlow", 1, 1);
    const auto found = examined();
    const HealthReport& raised = found.at("log-folder").report;
    EXPECT_EQ(HealthState::unknown, raised.state);
    EXPECT_EQ(healthSentences::notLookedAt, raised.detail.pattern);
    EXPECT_EQ(standardErrorText(runTimeErrors::deviceIo), raised.detail.inserts[0]);
    EXPECT_EQ(HealthState::ok, found.at("database.flags").report.state);
    EXPECT_EQ(HealthState::missing, found.at("languages").report.state);
}

TEST_F(Examination, ADatabaseThatIsAwayIsAskedOnce)
{
    tool.database.unreachable();
    const auto found = examined();
    EXPECT_EQ(HealthState::unusable, found.at("database").report.state);
    for (const char* id : {"database.flags", "database.change-flags", "database.settings",
                           "database.change-settings", "rights.database"})
        EXPECT_EQ(HealthState::unknown, found.at(id).report.state) << id;
    EXPECT_THAT(tool.database.queries(), IsEmpty());
}

TEST_F(Examination, AServerThatRefusesOneQueryIsAskedOn)
{
    tool.database.withComponent("CallFlow", 1, 1);
    tool.database.failing("vw_LoggerDiagnosticGrid", databaseErrors::statementRefused);
    const auto found = examined();
    EXPECT_EQ(HealthState::damaged, found.at("database.flags").report.state);
    EXPECT_EQ(HealthState::ok, found.at("database.change-flags").report.state);
}

TEST_F(Examination, CallsNoProcedureAndReportsNoEvent)
{
    tool.database.withComponent("CallFlow", 1, 1)
        .withConfiguration("System.LogMgr.MaxDiagnosticMegabytesSaved", 100, valueType::integer)
        .withConfiguration("System.LogMgr.WritingEnabled", true, valueType::boolean);
    const auto found = examined();
    for (const char* id : {"database.flags", "database.change-flags", "database.settings",
                           "database.change-settings"})
        EXPECT_EQ(HealthState::ok, found.at(id).report.state)
            << id << found.at(id).report.detail.text();
    EXPECT_THAT(tool.database.calls(), IsEmpty());
    EXPECT_THAT(tool.eventReporter.reports(), IsEmpty());
    EXPECT_EQ(0, tool.database.openRecordsets());
}

TEST_F(Examination, AServerThatCantBeOpenedIsTheFirstFinding)
{
    struct Case {
        int error;
        HealthState state;
    };
    for (const Case& c : {Case{runTimeErrors::pathNotFound, HealthState::missing},
                          Case{runTimeErrors::invalidFileFormat, HealthState::damaged},
                          Case{runTimeErrors::permissionDenied, HealthState::unusable}}) {
        const auto findings = health::examine(
            [&]() -> std::unique_ptr<ServerAccess> { throw RunTimeError(c.error, "So it is."); });
        EXPECT_EQ(c.state, findings.front().report.state);
        EXPECT_EQ("The server can't be opened: So it is.", findings.front().report.detail.text());
        for (std::size_t at = 1; at < findings.size(); ++at)
            EXPECT_EQ(HealthState::unknown, findings[at].report.state);
    }
}

TEST(Findings, OnlyWhatIsNeededAndNotWellIsALack)
{
    Finding needed{"a", "A", true, {}};
    Finding useful{"b", "B", false, {HealthState::missing, {}}};
    EXPECT_EQ(0u, neededLacks({needed, useful}));
    for (const HealthState state : {HealthState::missing, HealthState::damaged,
                                    HealthState::unusable, HealthState::unknown}) {
        needed.report.state = state;
        EXPECT_EQ(1u, neededLacks({needed, useful})) << wordOf(state);
    }
}

TEST(HealthSentences, EachStandsOnceInTheirList)
{
    const std::set<std::string_view> once(std::begin(healthSentences::all),
                                          std::end(healthSentences::all));
    EXPECT_EQ(std::size(healthSentences::all), once.size());
}

} // namespace
