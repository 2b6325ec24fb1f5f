#include "traces/macro_trace_record.h"

#include "core/trapped_error_listener.h"
#include "traces/traces_fixture.h"

using mdlTraces::isenabledMacroTrace;
using mdlTraces::recordMacroTrace;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using MacroTraceRecord = TracesTest;

} // namespace

TEST_F(MacroTraceRecord, MakesTheKeysThatAreMissingAndWritesStateAndDate)
{
    tool.registry.withKey(baseKey);

    recordMacroTrace(tool.context, "Call Flow", "Transfers", true);

    EXPECT_EQ(1, enabledRecord("Call Flow", "Transfers"));
    EXPECT_EQ("10/8/2005 3:23:07 PM",
              tool.registry.text(recordKey("Call Flow", "Transfers"), "Date"));
    EXPECT_THAT(events(), ElementsAre("10004 Call Flow - Transfers"));
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(MacroTraceRecord, WritesOffWithItsOwnEvent)
{
    recordMacroTrace(tool.context, "Call Flow", "Transfers", false);

    EXPECT_EQ(0, enabledRecord("Call Flow", "Transfers"));
    EXPECT_THAT(events(), ElementsAre("10005 Call Flow - Transfers"));
}

TEST_F(MacroTraceRecord, RecordsAgainWithANewDateAndAnotherEvent)
{
    recordMacroTrace(tool.context, "G", "T", true);
    tool.clock.advance(3600);
    recordMacroTrace(tool.context, "G", "T", true);

    EXPECT_EQ("10/8/2005 4:23:07 PM", tool.registry.text(recordKey("G", "T"), "Date"));
    EXPECT_THAT(events(), ElementsAre("10004 G - T", "10004 G - T"));
}

TEST_F(MacroTraceRecord, WritesStateBeforeDate)
{
    recordMacroTrace(tool.context, "G", "T", true);

    EXPECT_THAT(tool.registry.written(),
                ElementsAre(recordKey("G", "T") + "\\Enabled", recordKey("G", "T") + "\\Date"));
}

TEST_F(MacroTraceRecord, WritesTheStateBeforeTheEventAndTheDateBehindIt)
{
    Texts writtenByTheEvent;
    tool.eventReporter.failing(429);
    const TrappedErrorListener listener(
        tool.context, [&](const RunTimeError& /*error*/, std::string_view /*procName*/) {
            writtenByTheEvent = tool.registry.written();
        });

    for (const bool enabled : {true, false}) {
        const std::string key = recordKey("G", enabled ? "on" : "off");
        const std::size_t before = tool.registry.written().size();

        recordMacroTrace(tool.context, "G", enabled ? "on" : "off", enabled);

        EXPECT_EQ(before + 1, writtenByTheEvent.size());
        EXPECT_EQ(key + "\\Enabled", writtenByTheEvent.back());
        EXPECT_EQ(key + "\\Date", tool.registry.written().back());
    }
}

TEST_F(MacroTraceRecord, ReadsTheStateOfEachMacroTraceAlone)
{
    recorded("G", "on", 1);
    recorded("G", "off", 0);
    recorded("G", "odd", 7);
    recorded("G", "negative", -1);
    tool.registry.withKey(recordKey("G", "bare"));

    EXPECT_EQ(1, isenabledMacroTrace(tool.context, "G", "on"));
    EXPECT_EQ(0, isenabledMacroTrace(tool.context, "G", "off"));
    EXPECT_EQ(7, isenabledMacroTrace(tool.context, "G", "odd")) << "it reads back as it is";
    EXPECT_EQ(-1, isenabledMacroTrace(tool.context, "G", "negative"));
    EXPECT_EQ(0, isenabledMacroTrace(tool.context, "G", "bare"));
    EXPECT_EQ(0, isenabledMacroTrace(tool.context, "G", "no key"));
    EXPECT_EQ(0, isenabledMacroTrace(tool.context, "another", "on"));
    EXPECT_THAT(tool.failures(), IsEmpty());
}

TEST_F(MacroTraceRecord, LogsAStatePastSixteenBitsAndTakesItForOff)
{
    recorded("G", "T", 70000);

    EXPECT_EQ(0, isenabledMacroTrace(tool.context, "G", "T"));

    EXPECT_THAT(tool.failures("[mdlTraces]isenabledMacroTrace"),
                ElementsAre("Err.Number = 6 Err.Description = Overflow"));
}

TEST_F(MacroTraceRecord, ReportsTheEventAlsoWhereTheRegistryRefusesTheKeys)
{
    tool.registry.withKey(baseKey).readOnly(baseKey);

    recordMacroTrace(tool.context, "G", "T", true);

    EXPECT_THAT(tool.failures("[mdlTraces]recordMacroTrace"),
                testing::Each("Err.Number = 1001 Err.Description = Unable to create the registry "
                              "key"));
    EXPECT_EQ(3u, tool.failures().size());
    EXPECT_THAT(events(), ElementsAre("10004 G - T"));
    EXPECT_EQ(0, isenabledMacroTrace(tool.context, "G", "T"));
}

TEST_F(MacroTraceRecord, WritesTheDateAlsoWhenTheEventCannotBeReported)
{
    tool.eventReporter.failing(429);

    recordMacroTrace(tool.context, "G", "T", true);

    EXPECT_EQ(1u, tool.failures("[mdlTraces]recordMacroTrace").size());
    EXPECT_EQ("10/8/2005 3:23:07 PM", tool.registry.text(recordKey("G", "T"), "Date"));
}

TEST_F(MacroTraceRecord, IsNotTraced)
{
    recordMacroTrace(tool.context, "G", "T", true);
    isenabledMacroTrace(tool.context, "G", "T");

    EXPECT_THAT(tool.logLines(), IsEmpty());
}
