#include "timeline/sources/open_sources.h"

#include "backends/cabinet/mspack_cabinets.h"
#include "backends/jet/jet_engine.h"
#include "backends/jet/jet_trace_reader.h"
#include "cabmaker/cabinet_maker.h"
#include "platform/event_log_exporter.h"
#include "support/places.h"
#include "support/temporary_folder.h"
#include "timeline/sources/source_reading.h"

#include <gmock/gmock.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace timeline {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

const std::string basicLine = "15:23:07:123,Store,17,CallFlow,3,a text\r\n";
const std::string basicRow = "2005-10-08 15:23:07.123 KoCSMgr,Store,17,CallFlow,3,a text";
const std::string logName = "diag_KoCSMgr_20051008_152307.txt";
const std::string events =
    std::string(eventLogCsvHeader) + "2005-10-08 15:23:08,Error,Disk,7,SERVER,full\r\n";

/// Files of all kinds in a folder of a test's own.
struct Files {
    TemporaryFolder folder;

    std::string makeDatabase(const std::string& name, const std::string& trace) const
    {
        const std::string path = folder / name;
        std::filesystem::copy_file(std::string(built::data) + "/blankWPNDB.mdb", path);
        jet::JetEngine engine([](const std::string& each) { return each; });
        const auto database = engine.openDatabase(path);
        const auto traces = database->openRecordset("tblTraces");
        traces->addNew();
        traces->field("Date").setUtf8("10/8/2005 15:23:09:000");
        traces->field("Process").setUtf8("Notify");
        traces->field("Trace").setUtf8(trace);
        traces->update();
        return path;
    }

    std::string makeCabinet(const std::string& name, const std::vector<std::string>& members) const
    {
        std::string directives = ".Option EXPLICIT\r\n.Set CabinetNameTemplate=..\\" + name +
                                 "\r\n.Set Cabinet=on\r\n.Set Compress=on\r\n"
                                 ".Set MaxDiskSize=CDROM\r\n";
        for (const auto& member : members) directives += "\"" + folder / member + "\"\r\n";
        const std::string path = folder.write("made.ddf", directives);
        cabmaker::makeCabinet(path, {folder.path(), "", 1});
        for (const char* report : {"made.ddf", "setup.inf", "setup.rpt"})
            std::filesystem::remove(folder / report);
        std::filesystem::remove_all(folder / "disk1");
        return folder / name;
    }
};

/// What an opening found, with the readers that it took.
struct Opened {
    explicit Opened(const std::string& path, SourceOptions options = {},
                    Spooling::Limits limits = {}, std::size_t mostOpenFiles = 200)
        : opening(databases, cabinets, std::move(options), limits, mostOpenFiles),
          found(opening.open(path, progress))
    {}

    std::vector<std::string> texts()
    {
        std::vector<std::string> texts;
        for (const auto& source : found.sources)
            for (auto& text : textsOf(*source)) texts.push_back(std::move(text));
        return texts;
    }

    const SourceFacts& facts(std::size_t source = 0) const
    {
        return found.sources[source]->facts();
    }

    jet::JetTraceReader databases;
    MspackCabinets cabinets;
    Progress progress;
    SourceOpening opening;
    OpenedSources found;
};

std::string refusalOf(const std::string& path)
{
    return errorTextOf([&] { Opened{path}; });
}

TEST(SourceOpening, OpensARawLogOfEitherForm)
{
    const Files files;
    Opened log(files.folder.write(logName, basicLine));
    EXPECT_THAT(log.texts(), ElementsAre(basicRow));
    EXPECT_EQ(logName, log.facts().name);
    EXPECT_EQ(files.folder / logName, log.facts().path);
    EXPECT_THAT(log.facts().guesses, ElementsAre(HasSubstr("basic ones")));
    Opened extended(
        files.folder.write(logName, "15:23:07:123,Store,17,0x1A,4,C-1,CallFlow,3,a text\r\n"));
    EXPECT_THAT(extended.texts(), ElementsAre(basicRow));
    EXPECT_EQ(LineForm::extended, extended.facts().form);
}

TEST(SourceOpening, TakesWhatIsKnownInPlaceOfGuesses)
{
    const Files files;
    SourceOptions options;
    options.codePage = windows1252();
    options.form = LineForm::basic;
    options.localTime = [](Moment universal) { return universal - 8 * 3'600'000; };
    Opened log(files.folder.write(logName, basicLine + "\xE4\r\n"), options);
    EXPECT_THAT(log.facts().guesses, IsEmpty());
    Opened data(
        files.folder.write("data_A_20051008_152307.txt", "2005-10-08 23:23:07,Store,17,a text\r\n"),
        options);
    EXPECT_EQ(SourceKind::dataFile, data.facts().kind);
    EXPECT_THAT(data.facts().guesses, IsEmpty());
    const auto texts = data.texts();
    ASSERT_THAT(texts, SizeIs(1));
    EXPECT_THAT(texts[0], StartsWith("2005-10-08 15:23:07.000 A,Store,17,"));
}

TEST(SourceOpening, OpensFormattedCopiesAndDataFilesByTheirLines)
{
    const Files files;
    Opened copy(
        files.folder.write("copy.txt", "2005-10-08 15:23:07 (Store,17,CallFlow,3) a text\r\n"));
    EXPECT_EQ(SourceKind::formattedCopy, copy.facts().kind);
    EXPECT_THAT(copy.texts(), ElementsAre("2005-10-08 15:23:07.000 ,Store,17,CallFlow,3,a text"));
    Opened data(files.folder.write("some", "2005-10-08 15:23:07,Store,17,a text\r\n"));
    EXPECT_EQ(SourceKind::dataFile, data.facts().kind);
    EXPECT_THAT(data.facts().guesses, ElementsAre(HasSubstr("clock of this machine")));
}

TEST(SourceOpening, CountsTheDaysOfALogWithoutADateBackFromWhenItWasModified)
{
    const Files files;
    const std::string path =
        files.folder.write("some.txt", "23:59:59:000,S,1,C,1,a\r\n00:00:01:000,S,1,C,1,b\r\n");
    Opened log(path);
    const Moment day =
        dayOf(machineLocalTime(std::chrono::duration_cast<std::chrono::milliseconds>(
                                   std::chrono::system_clock::now().time_since_epoch())
                                   .count()));
    const SourceRows rows = rowsOf(*log.found.sources[0]);
    ASSERT_THAT(rows, SizeIs(2));
    EXPECT_EQ(day - 1000, rows[0].moment);
    EXPECT_EQ(day + 1000, rows[1].moment);
    EXPECT_THAT(log.facts().guesses, testing::Contains(HasSubstr("when it was modified")));
}

TEST(SourceOpening, CountsTheDaysOfLinesWithoutADateBackFromTheFirstDate)
{
    const Files files;
    const std::string path =
        files.folder.write("some.txt", "23:59:59:000,S,1,C,1,a\r\n00:00:01:000,S,1,C,1,b\r\n"
                                       "2025-02-20 00:00:02,S,1,C,1,c\r\n"
                                       "2025-02-24 15:00:00,S,1,C,1,d\r\n");
    Opened log(path);
    const Moment day = dayOf(2025, 2, 20);
    const SourceRows rows = rowsOf(*log.found.sources[0]);
    ASSERT_THAT(rows, SizeIs(4));
    EXPECT_EQ(day - 1000, rows[0].moment);
    EXPECT_EQ(day + 1000, rows[1].moment);
    EXPECT_EQ(day + 2000, rows[2].moment);
    EXPECT_THAT(log.facts().guesses,
                testing::Contains("The days of the first lines of some.txt are counted back from "
                                  "the first date in it"));
}

TEST(SourceOpening, NamesADatabaseWithoutTracesOnce)
{
    const Files files;
    const std::string path = files.makeDatabase("other.mdb", "a trace");
    std::ifstream whole(path, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(whole), {}};
    const std::string table("t\0b\0l\0T\0r\0a\0c\0e\0s\0", 18);
    for (std::size_t at = bytes.find(table); at != std::string::npos; at = bytes.find(table, at))
        bytes[at] = 'X';
    EXPECT_EQ("other.mdb has no table of traces that can be read",
              refusalOf(files.folder.write("other.mdb", bytes)));
}

TEST(SourceOpening, NamesAFileThatCanNotBeRead)
{
    const std::string path = "/proc/self/mem"; // has no byte at its beginning, and says so
    EXPECT_THAT(refusalOf(path), StartsWith(path + ": "));
}

TEST(SourceOpening, OpensTraceDatabasesAndEventLogsWhateverTheirNames)
{
    const Files files;
    files.makeDatabase("gather.txt", "stored");
    Opened database(files.folder / "gather.txt");
    EXPECT_EQ(SourceKind::traceDatabase, database.facts().kind);
    EXPECT_THAT(database.texts(), ElementsAre("2005-10-08 15:23:09.000 Notify,,0,,0,stored"));
    Opened log(files.folder.write("events", events));
    EXPECT_EQ(SourceKind::eventLog, log.facts().kind);
    EXPECT_THAT(log.texts(), ElementsAre("2005-10-08 15:23:08.000 ,Disk,7,,1,full"));
}

TEST(SourceOpening, OpensAnEmptyLogByItsName)
{
    const Files files;
    Opened log(files.folder.write(logName, ""));
    EXPECT_THAT(log.found.sources, SizeIs(1));
    EXPECT_THAT(log.texts(), IsEmpty());
}

TEST(SourceOpening, SaysInASentenceThatAFileIsNoneOfThese)
{
    const Files files;
    EXPECT_EQ(files.folder / "x.png" +
                  " is no log, trace database, exported event log or cabinet that can be read",
              refusalOf(files.folder.write("x.png", std::string("\x89PNG\r\n\x1a\n\0\0", 10))));
    EXPECT_THAT(refusalOf(files.folder.write("empty", "")),
                StartsWith(files.folder / "empty" + " is no log"));
    EXPECT_EQ(files.folder / "x.mdb" + " is no trace database, or its first page is damaged",
              refusalOf(files.folder.write("x.mdb", "x")));
    EXPECT_EQ(files.folder / "x.cab" + " is no cabinet, or its head is damaged",
              refusalOf(files.folder.write("x.cab", "x")));
    EXPECT_EQ("there is no " + files.folder / "absent", refusalOf(files.folder / "absent"));
    EXPECT_THAT(refusalOf(files.folder.write("cut.cab", std::string("MSCF\0\0\0\0", 8))),
                StartsWith("cut.cab: "));
    EXPECT_THAT(
        refusalOf(files.folder.write("cut.mdb", std::string("\0\1\0\0Standard Jet DB", 19))),
        StartsWith("cut.mdb: "));
}

TEST(SourceOpening, OpensWhatIsInACabinet)
{
    const Files files;
    files.folder.write(logName, basicLine);
    files.folder.write("Application.csv", events);
    files.folder.write("readme.txt", "about this");
    files.makeDatabase("a.mdb", "stored");
    const std::string path =
        files.makeCabinet("made.cab", {"a.mdb", "Application.csv", "readme.txt", logName});
    Opened cabinet(path);
    EXPECT_THAT(cabinet.texts(), ElementsAre("2005-10-08 15:23:09.000 Notify,,0,,0,stored",
                                             "2005-10-08 15:23:08.000 ,Disk,7,,1,full", basicRow));
    EXPECT_EQ("made.cab/" + logName, cabinet.facts(2).name);
    EXPECT_EQ("", cabinet.facts(2).path);
    EXPECT_THAT(cabinet.found.passedOver,
                ElementsAre("1 file of made.cab is nothing to be read as rows: readme.txt"));
    EXPECT_THAT(cabinet.found.troubles, IsEmpty());
}

TEST(SourceOpening, ReadsWhatIsInFrontOfADamageInACabinetAndSaysSo)
{
    const Files files;
    std::string log;
    for (int number = 0; log.size() < 400'000; ++number)
        log += "15:23:07:123,Store," + std::to_string(number * 7919) + ",CallFlow,3,text\r\n";
    files.folder.write(logName, log);
    const std::string path = files.makeCabinet("made.cab", {logName});
    std::string bytes = files.folder.read("made.cab");
    bytes[bytes.size() / 2] ^= 0x55;
    files.folder.write("made.cab", bytes);
    Opened cabinet(path);
    ASSERT_THAT(cabinet.found.sources, SizeIs(1));
    EXPECT_GT(cabinet.texts().size(), 1000u);
    EXPECT_THAT(cabinet.found.troubles,
                ElementsAre(AllOf(StartsWith("made.cab/" + logName + " is read in part: "),
                                  HasSubstr("damaged"))));
}

TEST(SourceOpening, UnpacksNoMoreThanItMay)
{
    const Files files;
    files.folder.write("bomb_a.txt", basicLine + std::string(8 << 20, ' '));
    files.folder.write("bomb_b.txt", basicLine + std::string(8 << 20, ' '));
    files.folder.write(logName, basicLine);
    const std::string path = files.makeCabinet("bomb.cab", {logName, "bomb_a.txt", "bomb_b.txt"});
    EXPECT_LT(std::filesystem::file_size(path), 100'000u);
    Opened cabinet(path, {}, {10 << 20, 10, 0});
    EXPECT_THAT(cabinet.found.sources, SizeIs(2));
    EXPECT_THAT(cabinet.found.troubles,
                ElementsAre("1 file of bomb.cab is not read, as too much would have to be"
                            " unpacked or is damaged: bomb_b.txt"));
    Opened few(path, {}, {100 << 20, 1, 0});
    EXPECT_THAT(few.found.sources, SizeIs(1));
    EXPECT_THAT(few.found.troubles, SizeIs(2));
}

TEST(SourceOpening, TellsInFewSentencesOfACabinetOfTooManyFiles)
{
    const Files files;
    std::vector<std::string> names;
    for (int number = 10; number < 50; ++number) {
        names.push_back("diag_A" + std::to_string(number) + "_20051008_152307.txt");
        files.folder.write(names.back(), basicLine);
    }
    Opened cabinet(files.makeCabinet("made.cab", names), {}, {1 << 20, 3, 0});
    EXPECT_THAT(cabinet.found.sources, SizeIs(3));
    ASSERT_THAT(cabinet.found.troubles, SizeIs(6));
    EXPECT_EQ("made.cab/" + names[3] + " is not read: more than 3 files would have to be unpacked",
              cabinet.found.troubles[0]);
    EXPECT_THAT(cabinet.found.troubles[5], StartsWith("32 files of made.cab are not read, "));
}

TEST(SourceOpening, EndsUnpackingWhenItIsCancelled)
{
    const Files files;
    files.folder.write(logName, basicLine);
    const std::string path = files.makeCabinet("made.cab", {logName});
    jet::JetTraceReader databases;
    MspackCabinets cabinets;
    SourceOpening opening(databases, cabinets);
    Progress progress;
    progress.cancelled = true;
    EXPECT_THAT(opening.open(path, progress).sources, IsEmpty());
}

TEST(SourceOpening, OpensTheFilesOfAFolderInOrderAndTellsOfTheOthers)
{
    const Files files;
    files.folder.write("b.txt", basicLine);
    files.folder.write("a.csv", events);
    files.folder.write("below/" + logName, basicLine);
    files.folder.write("picture.png", "x");
    files.folder.write("notes.doc", "x");
    Opened folder(files.folder.path());
    ASSERT_THAT(folder.found.sources, SizeIs(2));
    EXPECT_EQ("a.csv", folder.facts(0).name);
    EXPECT_EQ("b.txt", folder.facts(1).name);
    EXPECT_THAT(folder.found.passedOver,
                ElementsAre("2 files of " + files.folder.path() +
                                " are nothing to be read as rows: notes.doc, picture.png",
                            "1 folder of " + files.folder.path() + " is not entered: below"));
}

TEST(SourceOpening, SaysThatAFolderIsEmpty)
{
    const TemporaryFolder folder;
    const Opened opened(folder.path());
    EXPECT_THAT(opened.found.sources, IsEmpty());
    EXPECT_THAT(opened.found.passedOver, ElementsAre("nothing is in " + folder.path()));
}

TEST(SourceOpening, ReadsOnceWhatAFolderHasTwice)
{
    const Files files;
    files.folder.write(logName, basicLine);
    files.folder.write("diag_KoCSMgr_20051008_152307_fmtd.txt",
                       "15:23:07:123 (Store,17,CallFlow,3) a text\r\n");
    files.folder.write("Application.csv", events);
    files.makeDatabase("a.mdb", "stored");
    files.makeCabinet("made.cab", {"a.mdb", "Application.csv"});
    Opened folder(files.folder.path());
    EXPECT_THAT(folder.texts(), SizeIs(3));
    EXPECT_THAT(folder.found.notes,
                ElementsAre("2 files of made.cab lie beside it and are read there: a.mdb,"
                            " Application.csv",
                            HasSubstr("is the formatted copy of a log beside it: ")));
}

TEST(SourceOpening, FollowsNoLinkOutOfAFolder)
{
    const Files files;
    const TemporaryFolder elsewhere;
    elsewhere.write("secret.txt", basicLine);
    std::filesystem::create_symlink(elsewhere / "secret.txt", files.folder / "link.txt");
    Opened folder(files.folder.path());
    EXPECT_THAT(folder.found.sources, IsEmpty());
    EXPECT_THAT(folder.found.passedOver,
                ElementsAre("1 link of " + files.folder.path() +
                            " is not followed, as it may lead out of the folder: link.txt"));
    Opened named(files.folder / "link.txt");
    EXPECT_THAT(named.found.sources, SizeIs(1)) << "but a person may name one";
}

TEST(SourceOpening, KeepsFewOfTheFilesOfALargeFolderOpen)
{
    const Files files;
    for (int number = 100; number < 400; ++number)
        files.folder.write("diag_A" + std::to_string(number) + "_20051008_152307.txt", basicLine);
    Opened folder(files.folder.path(), {}, {}, 10);
    ASSERT_THAT(folder.found.sources, SizeIs(300));
    EXPECT_THAT(folder.texts(), SizeIs(300));
    std::size_t open = 0;
    for (const auto& each : std::filesystem::directory_iterator("/proc/self/fd")) {
        std::error_code none;
        const auto target = std::filesystem::read_symlink(each.path(), none).string();
        open += target.starts_with(files.folder.path()) ? 1 : 0;
    }
    EXPECT_LE(open, 10u);
}

TEST(SourceOpening, KeepsFewerFilesOpenWhereTheSystemAllowsFew)
{
    rlimit before{};
    ASSERT_EQ(0, getrlimit(RLIMIT_NOFILE, &before));
    const rlimit few{64, before.rlim_max};
    ASSERT_EQ(0, setrlimit(RLIMIT_NOFILE, &few));
    const std::size_t usual = SourceOpening::usualOpenFiles();
    ASSERT_EQ(0, setrlimit(RLIMIT_NOFILE, &before));
    EXPECT_GE(usual, 10u);
    EXPECT_LE(usual, 32u);
}

TEST(SourceOpening, ReadsAPipeThatAPathLeadsTo)
{
    const TemporaryFolder folder;
    const std::string path = folder / "pipe";
    ASSERT_EQ(0, mkfifo(path.c_str(), 0600));
    std::thread writer([&] { std::ofstream(path) << basicLine << basicLine; });
    Opened piped(path);
    writer.join();
    ASSERT_THAT(piped.found.sources, SizeIs(1));
    EXPECT_EQ("", piped.facts(0).path) << "it can't be opened again";
    EXPECT_THAT(piped.texts(), SizeIs(2));
}

TEST(SourceOpening, SpoolsWhatCanBeReadOnceAlone)
{
    const Files files;
    const std::string log = basicLine + basicLine;
    int ends[2];
    ASSERT_EQ(0, pipe(ends));
    ASSERT_EQ(static_cast<ssize_t>(log.size()), write(ends[1], log.data(), log.size()));
    close(ends[1]);
    jet::JetTraceReader databases;
    MspackCabinets cabinets;
    SourceOpening opening(databases, cabinets);
    Progress progress;
    OpenedSources found = opening.openInput(FileDescriptor(ends[0]), "standard input", progress);
    ASSERT_THAT(found.sources, SizeIs(1));
    EXPECT_EQ("standard input", found.sources[0]->facts().name);
    EXPECT_EQ("", found.sources[0]->facts().path);
    EXPECT_THAT(textsOf(*found.sources[0]), SizeIs(2));
}

TEST(SourceOpening, ReadsAsMuchOfAnEndlessInputAsItMay)
{
    int ends[2];
    ASSERT_EQ(0, pipe(ends));
    const auto before = std::signal(SIGPIPE, SIG_IGN);
    std::thread writer([&] {
        while (write(ends[1], basicLine.data(), basicLine.size()) > 0) {
        }
        close(ends[1]);
    });
    jet::JetTraceReader databases;
    MspackCabinets cabinets;
    SourceOpening opening(databases, cabinets, {}, {300'000, 10, 0});
    Progress progress;
    const OpenedSources found =
        opening.openInput(FileDescriptor(ends[0]), "standard input", progress);
    writer.join();
    std::signal(SIGPIPE, before);
    ASSERT_THAT(found.sources, SizeIs(1));
    EXPECT_GT(textsOf(*found.sources[0]).size(), 1000u);
    EXPECT_THAT(found.troubles, ElementsAre(StartsWith("standard input is read in part: ")));
}

} // namespace
} // namespace timeline
