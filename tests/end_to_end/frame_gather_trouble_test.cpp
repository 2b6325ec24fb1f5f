// Gathers of a time frame in which something is missing, is lost on the way, or is cut short.
#include "backends/jet/outside_readers.h"
#include "end_to_end/frame_gather.h"
#include "support/places.h"

#include <gmock/gmock.h>

#include <random>

#include <csignal>
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

struct FrameGatherTrouble : FrameGather {
    /// Gathers a log of 500,000 lines, and runs a command as soon as the database is there.
    Outcome gatherWhile(const std::string& command) const
    {
        std::string content;
        for (int line = 0; line < 500'000; ++line)
            content += "15:23:07:123,Conv,1,CallFlow,2,good\n";
        write(drive("KelmaOrvan/Logs/diag_Long_20250101_000000.txt"), content);
        return runProgram({"bash", "-c",
                           std::string("'") + built::orvandiag + "' --site '" + site.string() +
                               "' gather frame --from '2025-01-01 00:00' --hours 24 --to '" +
                               target.string() + "' & gather=$!; until [ -s '" + target.string() +
                               "'/*.mdb ] || ! kill -0 $gather; do :; done; " + command +
                               "; wait $gather"});
    }

    /// Starts a gather into the target, and kills it a while after its database has grown to a
    /// size, unless it ends before.
    void killGather(std::uintmax_t bytes, unsigned microseconds) const
    {
        std::vector<std::string> words = {built::orvandiag, "--site", site.string()};
        for (const auto& word : gatherWords("2025-02-17 17:00", "100", target))
            words.push_back(word);
        const pid_t child = fork();
        if (child == 0) {
            const int nowhere = open("/dev/null", O_WRONLY);
            dup2(nowhere, STDOUT_FILENO);
            dup2(nowhere, STDERR_FILENO);
            std::vector<char*> arguments;
            for (auto& word : words) arguments.push_back(word.data());
            arguments.push_back(nullptr);
            execv(arguments[0], arguments.data());
            _exit(127);
        }
        const auto grown = [&] {
            const fs::path database = databaseIn(target);
            std::error_code none;
            return !database.empty() && fs::file_size(database, none) >= bytes;
        };
        while (!grown()) {
            if (waitpid(child, nullptr, WNOHANG) != 0) return;
            usleep(200);
        }
        usleep(microseconds);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
    }
};

TEST_F(FrameGatherTrouble, AFrameOnAServerWhoseLogFolderIsMissingSaysSo)
{
    fs::rename(drive("KelmaOrvan/Logs"), folder / "logs");
    const Outcome gathered = gather("2025-02-20 16:42", "1");
    EXPECT_EQ(1, gathered.status);
    EXPECT_EQ("orvandiag: not everything was gathered: the server's log folder "
              "C:\\KelmaOrvan\\Logs is not there\n",
              gathered.err);
    EXPECT_TRUE(gathered.json()["cabinet"].is_string());
    EXPECT_THAT(run({"gather", "frame", "--from", "2025-02-20 16:42", "--hours", "1", "--to",
                     target.string()})
                    .out,
                testing::Not(HasSubstr("No line lies in the time frame")))
        << "nobody looked";
}

TEST_F(FrameGatherTrouble, TellsOfWhatIsMissing)
{
    const struct {
        const char* because;
        const char* file;
        const char* content; ///< null: a folder stands in its place
        const char* message;
        bool database;
    } cases[] = {
        {"a template that can't be copied", "blankWPNDB.mdb", nullptr, "no trace database was made",
         false},
        {"a template that is no database", "blankWPNDB.mdb", "not a database at all",
         "not everything was gathered", true},
        {"no cabinet maker", "cabmaker.exe", nullptr, "no cabinet was made", true},
    };
    ASSERT_EQ(0, run({"cycle"}).status) << "the tool's folder is supplied once";
    const fs::path tools = drive("OrvanDiagnostics");
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const fs::path file = tools / c.file;
        const fs::path kept = folder / "kept";
        fs::rename(file, kept);
        if (c.content != nullptr)
            write(file, c.content);
        else
            fs::create_directory(file);
        if (c.content != nullptr) fs::permissions(file, fs::perms::owner_all);

        const Outcome gathered = gather("2025-02-20 16:42", "1");
        EXPECT_EQ(1, gathered.status);
        EXPECT_THAT(gathered.err, HasSubstr(c.message));
        EXPECT_EQ(c.database, !gathered.json()["database"].is_null());
        EXPECT_TRUE(fs::exists(target / "Application.csv"));

        fs::remove_all(target);
        fs::remove_all(file);
        fs::rename(kept, file);
    }
}

TEST_F(FrameGatherTrouble, AMissingCabinetIsToldInTheCabinetMakersOwnWords)
{
    const fs::path named = folder / "a\x01z";
    const Outcome gathered = runJson(gatherWords("2025-02-20 16:42", "1", named));
    EXPECT_EQ(1, gathered.status);
    EXPECT_THAT(gathered.err, HasSubstr("no cabinet was made: " + (folder / "a\\x01z").string() +
                                        "\\ZMK.DDF:6: a control character"));
    EXPECT_TRUE(gathered.json()["cabinet"].is_null());
}

TEST_F(FrameGatherTrouble, TellsOfALogThatHasTooManyMalformedLines)
{
    std::string content = "15:23:07:123,Conv,1,CallFlow,2,good\n";
    for (int line = 0; line < 20; ++line) content += "garbage without any structure at all\n";
    write(drive("KelmaOrvan/Logs/diag_Odd_20250101_000000.txt"), content);
    const Outcome gathered = run(gatherWords("2025-01-01 00:00", "24", target));
    EXPECT_EQ(1, gathered.status);
    EXPECT_THAT(gathered.err,
                HasSubstr("diag_Odd_20250101_000000.txt has too many malformed lines"));
    EXPECT_EQ(11U, rowsOf(databaseIn(target), "tblTraces").size());
}

TEST_F(FrameGatherTrouble, TellsOfFiltersThatCouldNotAllBeStored)
{
    std::string content;
    for (char letter = 'a'; letter < 'p'; ++letter)
        content += "15:23:07:123,Conv,1," + std::string(60, letter) + ",2,good\n";
    write(drive("KelmaOrvan/Logs/diag_a,b_20250101_000000.txt"), content);
    // A template whose levels are numbers: of each key it gets a component.
    ASSERT_EQ(0, run({"cycle"}).status) << "the tool's folder is supplied once";
    jet::Schema schema = traceSchema();
    schema.tables.back().columns.back() =
        jet::parseSchema("table tblUniqueFilters\ncolumn TraceLevel long\n").tables[0].columns[0];
    write(drive("OrvanDiagnostics/blankWPNDB.mdb"), jet::blankDatabase(schema));
    const Outcome gathered = run(gatherWords("2025-01-01 00:00", "24", target));
    EXPECT_EQ(1, gathered.status);
    EXPECT_EQ("orvandiag: not everything was gathered: the filters could not all be stored: Data "
              "type conversion error\n",
              gathered.err);
    EXPECT_EQ(15U, rowsOf(databaseIn(target), "tblTraces").size());
    EXPECT_EQ(10U, rowsOf(databaseIn(target), "tblUniqueFilters").size());
}

TEST_F(FrameGatherTrouble, TellsOfDefinitionsThatCouldNotAllBeStored)
{
    ASSERT_EQ(0, run({"cycle"}).status) << "the tool's folder is supplied once";
    write(drive("OrvanDiagnostics/ZMKXML/HTa.xml"), "");
    const Outcome gathered = run(gatherWords("2025-02-20 16:42", "1", target));
    EXPECT_EQ(1, gathered.status);
    EXPECT_EQ("orvandiag: not everything was gathered: the macro trace definitions could not all "
              "be stored: Input past end of file\n",
              gathered.err);
}

TEST_F(FrameGatherTrouble, ADestinationThatVanishesIsToldAsGone)
{
    const Outcome gone = gatherWhile("rm -r '" + target.string() + "'");
    EXPECT_EQ(1, gone.status);
    EXPECT_EQ("", gone.out);
    EXPECT_THAT(gone.err, HasSubstr("the destination " + target.string() + " has gone"));
}

TEST_F(FrameGatherTrouble, ALogThatVanishesIsToldAndTheOthersAreGathered)
{
    const std::string name = "diag_Zed_20250101_000000.txt";
    write(drive("KelmaOrvan/Logs/" + name), "15:23:07:123,Conv,1,CallFlow,2,good\n");
    const Outcome gathered = gatherWhile("rm '" + drive("KelmaOrvan/Logs/" + name).string() + "'");
    EXPECT_EQ(1, gathered.status);
    EXPECT_THAT(gathered.err, HasSubstr(name + " can not be found.  Log not processed."));
    EXPECT_THAT(gathered.err, HasSubstr("not everything was gathered: " + name +
                                        " was not gathered: it is not in C:\\KelmaOrvan\\Logs\n"));
    EXPECT_EQ(500'000U, rowsOf(databaseIn(target), "tblTraces").size());
}

TEST_F(FrameGatherTrouble, ALogThatIsCutOrTakenAwayWhileItIsReadIsTold)
{
    const std::string name = "diag_Long_20250101_000000.txt";
    const std::string path = "'" + drive("KelmaOrvan/Logs/" + name).string() + "'";
    const std::string underWay = "until [ $(stat -c %s '" + target.string() +
                                 "'/*.mdb) -gt 2000000 ]; do sleep 0.01; done; ";
    const Outcome cut = gatherWhile(underWay + "truncate -s 100 " + path);
    EXPECT_EQ(1, cut.status);
    EXPECT_EQ("orvandiag: not everything was gathered: " + name + " was cut while it was read\n",
              cut.err);
    fs::remove_all(target);
    const Outcome gone = gatherWhile(underWay + "rm " + path);
    EXPECT_EQ(1, gone.status);
    EXPECT_EQ("orvandiag: not everything was gathered: " + name +
                  " was taken away while it was read\n",
              gone.err);
}

TEST_F(FrameGatherTrouble, LogsThatCanNotBeListedAreTold)
{
    fs::rename(drive("KelmaOrvan/Logs"), folder / "logs");
    fs::create_directory_symlink(folder / "logs", drive("KelmaOrvan/Logs"));
    const Outcome gathered = gather("2025-02-20 16:42", "1");
    EXPECT_EQ(1, gathered.status);
    EXPECT_THAT(gathered.err, HasSubstr("not everything was gathered: the logs in "
                                        "C:\\KelmaOrvan\\Logs could not be listed: "));
    EXPECT_TRUE(gathered.json()["cabinet"].is_string());
}

TEST_F(FrameGatherTrouble, ACurrentLogThatIsNotThereIsTold)
{
    const std::string log = currentLog();
    fs::remove(drive("KelmaOrvan/Logs/" + log));
    const Outcome gathered = gather("2025-02-20 16:42", "1");
    EXPECT_EQ(1, gathered.status);
    EXPECT_EQ("orvandiag: not everything was gathered: the current log of KoCSMgr, "
              "C:\\KelmaOrvan\\Logs\\" +
                  log + ", is not there\n",
              gathered.err);
}

TEST_F(FrameGatherTrouble, AKilledOneLeavesADatabaseThatHoldsAnExactPrefix)
{
    fs::remove_all(site);
    ASSERT_EQ(0, orvandiag({"sample", site.string(), "--lines", "20000"}).status);
    const auto rows = expected(localSecond(2025, 2, 17, 17, 0), 100);
    ASSERT_EQ(0, run(gatherWords("2025-02-17 17:00", "100", target)).status);
    const auto whole = fs::file_size(databaseIn(target));
    std::mt19937 random(4711);
    int cutShort = 0;
    for (int round = 0; round < 20; ++round) {
        SCOPED_TRACE(round);
        fs::remove_all(target);
        killGather(random() % whole, random() % 20'000);
        const fs::path database = databaseIn(target);
        if (database.empty()) continue;
        const auto found = rowsOf(database, "tblTraces");
        ASSERT_LE(found.size(), rows.size());
        EXPECT_EQ("", firstDifference(
                          {rows.begin(), rows.begin() + static_cast<std::ptrdiff_t>(found.size())},
                          found));
        if (!found.empty() && found.size() < rows.size()) ++cutShort;
        EXPECT_EQ(found.size(), exportedRows(database, "tblTraces").size());
    }
    EXPECT_GT(cutShort, 3) << "some kill was to hit the adding of rows";
}

} // namespace
