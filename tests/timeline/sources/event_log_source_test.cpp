#include "timeline/sources/event_log_source.h"

#include "platform/event_log_exporter.h"
#include "support/temporary_folder.h"
#include "system/root_folder.h"
#include "timeline/sources/source_reading.h"

#include <gmock/gmock.h>

namespace timeline {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

const std::string header(eventLogCsvHeader);

/// An event log of some bytes.
struct EventLog {
    explicit EventLog(const std::string& bytes)
        : path(folder.write("Application.csv", bytes)),
          source({SourceKind::eventLog, "Application.csv", path, "", LineForm::basic, {}},
                 std::make_shared<KeptFile>(openMachineFile(path, forReading, 53)))
    {}

    TemporaryFolder folder;
    std::string path;
    EventLogSource source;
};

TEST(EventLogSource, GivesEachEventItsMomentSourceNumberLevelAndMessage)
{
    EventLog log(header + "2005-10-08 15:23:07,Warning,OrvanDiag,1006,SERVER,It was on: a\r\n"
                          "2005-10-08 15:23:08,Error,Disk,-7,SERVER,\"two, \"\"three\"\"\"\r\n");
    EXPECT_THAT(textsOf(log.source),
                ElementsAre("2005-10-08 15:23:07.000 ,OrvanDiag,1006,,2,It was on: a",
                            "2005-10-08 15:23:08.000 ,Disk,-7,,1,two, \"three\""));
}

TEST(EventLogSource, KeepsLineFeedsWithinQuotesAndCountsTheirLines)
{
    EventLog log(header + "2005-10-08 15:23:07,Information,A,1,S,\"one\r\ntwo\"\r\n"
                          "2005-10-08 15:23:09,Information,A,2,S,three\r\n");
    EXPECT_THAT(textsOf(log.source), ElementsAre("2005-10-08 15:23:07.000 ,A,1,,4,one\ntwo",
                                                 "2005-10-08 15:23:09.000 ,A,2,,4,three"));
    EventLog again(log.folder.read("Application.csv"));
    const SourceRows rows = rowsOf(again.source);
    ASSERT_THAT(rows, SizeIs(2));
    EXPECT_EQ(2u, rows[0].line);
    EXPECT_EQ(4u, rows[1].line);
}

TEST(EventLogSource, TellsTheTypesOfEventsAsTheirNumbers)
{
    EXPECT_EQ(1, levelOfEventType("Error"));
    EXPECT_EQ(2, levelOfEventType("WARNING"));
    EXPECT_EQ(4, levelOfEventType("Information"));
    EXPECT_EQ(8, levelOfEventType("Success Audit"));
    EXPECT_EQ(16, levelOfEventType("Failure Audit"));
    EXPECT_EQ(0, levelOfEventType("Other"));
    EXPECT_EQ(0, levelOfEventType(""));
}

TEST(EventLogSource, ShowsWhatIsNoEventBehindTheOneBeforeIt)
{
    EventLog log(header + "garbage\r\n2005-10-08 15:23:07,Error,A,1,S,m\r\nonly, two\r\n"
                          "a,b,c,d,e,f\r\n\r\n2005-10-08 15:23:08,Error,A,x,S,n");
    EXPECT_THAT(textsOf(log.source),
                ElementsAre("+garbage", "2005-10-08 15:23:07.000 ,A,1,,1,m", "+only, two",
                            "+a,b,c,d,e,f", "2005-10-08 15:23:08.000 ,A,0,,1,n"));
}

TEST(EventLogSource, LosesOneLineAloneToAQuoteThatNothingCloses)
{
    EventLog log(header + "2005-10-08 15:23:07,Error,A,1,S,\"never closed\r\n"
                          "2005-10-08 15:23:08,Error,A,2,S,m\r\n"
                          "2005-10-08 15:23:09,Error,A,3,S,n\r\n");
    EXPECT_THAT(textsOf(log.source), ElementsAre("+2005-10-08 15:23:07,Error,A,1,S,\"never closed",
                                                 "2005-10-08 15:23:08.000 ,A,2,,1,m",
                                                 "2005-10-08 15:23:09.000 ,A,3,,1,n"));
}

TEST(EventLogSource, TakesAMessageThatLostItsQuotes)
{
    EventLog log(header + "2005-10-08 15:23:07,Error,A,1,S,one, two, three\r\n");
    EXPECT_THAT(textsOf(log.source),
                ElementsAre("2005-10-08 15:23:07.000 ,A,1,,1,one, two, three"));
}

TEST(EventLogSource, TakesAMarkAtItsBeginningAndBytesThatAreNoText)
{
    EventLog marked("\xEF\xBB\xBF" + header + "2005-10-08 15:23:07,Error,A,1,S,m\r\n");
    EXPECT_THAT(textsOf(marked.source), ElementsAre("2005-10-08 15:23:07.000 ,A,1,,1,m"));
    EventLog bytes(header + "2005-10-08 15:23:07,Error,A,1,S,\xFF" + std::string(1, '\0') + "\r\n");
    EXPECT_THAT(textsOf(bytes.source),
                ElementsAre("2005-10-08 15:23:07.000 ,A,1,,1,\xEF\xBF\xBD" + std::string(1, '\0')));
}

TEST(EventLogSource, GivesTheEventsThatAFilterTakesWithWhatBelongsToThem)
{
    const std::string bytes = header + "2005-10-08 15:23:07,Error,A,1,S,\"one\ntwo\"\r\nmore\r\n"
                                       "2005-10-08 15:23:08,Warning,B,2,S,three\r\nrest\r\n";
    EventLog bySource(bytes);
    EXPECT_THAT(textsOf(bySource.source, withValue(Column::source, "b")),
                ElementsAre("2005-10-08 15:23:08.000 ,B,2,,2,three", "+rest"));
    EventLog byText(bytes);
    EXPECT_THAT(textsOf(byText.source, withText("two")),
                ElementsAre("2005-10-08 15:23:07.000 ,A,1,,1,one\ntwo", "+more"));
    EventLog byBelonging(bytes);
    EXPECT_THAT(textsOf(byBelonging.source, withText("rest")),
                ElementsAre("2005-10-08 15:23:08.000 ,B,2,,2,three", "+rest"));
    EventLog none(bytes);
    EXPECT_THAT(textsOf(none.source, withText("absent")), IsEmpty());
}

TEST(EventLogSource, GoesOnWithWhatWasWrittenBehindItsEnd)
{
    EventLog log(header + "2005-10-08 15:23:07,Error,A,1,S,m\r\n");
    EXPECT_THAT(rowsOf(log.source), SizeIs(1));
    log.folder.write("Application.csv",
                     log.folder.read("Application.csv") + "2005-10-08 15:23:08,Error,A,2,S,n\r\n");
    const SourceRows later = rowsOf(log.source);
    ASSERT_THAT(later, SizeIs(1));
    EXPECT_EQ(3u, later[0].line);
}

TEST(EventLogSource, EndsSoonWhenItIsCancelled)
{
    EventLog log(header + "2005-10-08 15:23:07,Error,A,1,S,m\r\n");
    SourceRows rows;
    Progress progress;
    progress.cancelled = true;
    log.source.read(Filter(), rows, progress);
    EXPECT_THAT(rows, IsEmpty());
    progress.cancelled = false;
    log.source.read(Filter(), rows, progress);
    EXPECT_THAT(rows, SizeIs(1));
}

TEST(IsEventLog, KnowsTheLineOfNamesAlone)
{
    EXPECT_TRUE(isEventLog(header + "more"));
    EXPECT_TRUE(isEventLog("\xEF\xBB\xBFtime,type,source,event id,computer,message\nx"));
    EXPECT_FALSE(isEventLog("Time,Type,Source,Event ID,Computer,Messages\r\n"));
    EXPECT_FALSE(isEventLog(""));
}

} // namespace
} // namespace timeline
