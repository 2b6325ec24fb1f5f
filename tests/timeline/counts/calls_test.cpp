#include "timeline/counts/calls.h"

#include "timeline/counts/counted_logs.h"

namespace timeline {
namespace {

using Calls = CountedLogs;

TEST_F(Calls, GoThroughProcessesFromTheirFirstRowToTheirLast)
{
    add("KoTelephony",
        "15:00:00:000,Ports,12,t,4,A,PortControl,7,rings\n"
        "15:00:09:000,Ports,12,t,4,A,PortControl,7,ends\n"
        "15:00:09:500,Ports,12,t,4,,PortControl,7,of no call\n",
        LineForm::extended);
    add("KoCSMgr",
        "15:00:00:100,Conv,12,t,4,A,CallFlow,7,answers\n"
        "a line of its own form\n"
        "15:00:05:000,Conv,12,t,4,caf\xE9,CallFlow,7,another\n",
        LineForm::extended);
    CallCounter counter(timeline);
    count(counter);
    const auto& calls = counter.calls();
    ASSERT_EQ(2u, calls.size());
    EXPECT_EQ("A", calls[0].id);
    EXPECT_EQ("2025-02-20 15:00:00.000", momentText(calls[0].first));
    EXPECT_EQ("2025-02-20 15:00:09.000", momentText(calls[0].last));
    EXPECT_EQ(3u, calls[0].rows);
    EXPECT_EQ((std::vector<std::string>{"KoTelephony", "KoCSMgr"}), calls[0].processes);
    EXPECT_EQ("caf\u00e9", calls[1].id);
    EXPECT_EQ(1u, calls[1].rows);
}

TEST_F(Calls, TellProcessesAsTheirFilesAreNamed)
{
    add("KoCaf\u00e9", "15:00:00:000,Ports,12,t,4,A,PortControl,7,r\xE9sum\xE9\n",
        LineForm::extended);
    CallCounter counter(timeline);
    count(counter);
    ASSERT_EQ(1u, counter.calls().size());
    EXPECT_EQ((std::vector<std::string>{"KoCaf\u00e9"}), counter.calls()[0].processes);
}

TEST_F(Calls, TellTheirErrorsAndWarnings)
{
    add("KoCSMgr",
        "15:00:00:000,Conv,12,t,4,A,CallFlow,0,an error\n"
        "15:00:01:000,Conv,12,t,4,A,CallFlow,1,a warning\n"
        "15:00:02:000,Conv,12,t,4,A,CallFlow,1,a warning\n"
        "15:00:03:000,Conv,12,t,4,A,CallFlow,2,another row\n"
        "15:00:04:000,Conv,12,t,4,A,,0,a row without a component\n",
        LineForm::extended);
    CallCounter counter(timeline);
    count(counter);
    ASSERT_EQ(1u, counter.calls().size());
    EXPECT_EQ(5u, counter.calls()[0].rows);
    EXPECT_EQ(1u, counter.calls()[0].errors);
    EXPECT_EQ(2u, counter.calls()[0].warnings);
}

TEST_F(Calls, PastTheMostThoseThatAreKnownGoOn)
{
    add("KoCSMgr",
        "15:00:00:000,Conv,12,t,4,A,CallFlow,7,one\n"
        "15:00:01:000,Conv,12,t,4,B,CallFlow,7,two\n"
        "15:00:02:000,Conv,12,t,4,C,CallFlow,7,one too many\n"
        "15:00:03:000,Conv,12,t,4,A,CallFlow,7,one again\n",
        LineForm::extended);
    CallCounter counter(timeline, 2);
    count(counter);
    ASSERT_EQ(2u, counter.calls().size());
    EXPECT_EQ(2u, counter.calls()[0].rows);
    EXPECT_TRUE(counter.leftOut());
}

TEST_F(Calls, AreNoneWhereNoRowHasAnId)
{
    add("KoCSMgr", "15:00:00:100,Conv,12,CallFlow,7,answers\n");
    CallCounter counter(timeline);
    count(counter);
    EXPECT_TRUE(counter.calls().empty());
}

} // namespace
} // namespace timeline
