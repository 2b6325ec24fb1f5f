#include "hosts/common/recorded_events.h"

#include "support/error_of.h"
#include "support/fakes/fake_event_reporter.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(RecordedEvents, AreThoseThatTheReporterTookInTheirOrder)
{
    FakeEventReporter reporter;
    RecordedEvents events(reporter);
    events.report("Tool", 1, 0, 10002, {});
    events.report("Tool", 1, 10, 10004, {"GA - Trace", "more"});
    EXPECT_THAT(events.events(),
                ElementsAre(ReportedEvent{10002, ""}, ReportedEvent{10004, "GA - Trace"}));
    ASSERT_EQ(2u, reporter.reports().size());
    EXPECT_THAT(reporter.reports()[1].inserts, ElementsAre("GA - Trace", "more"));
}

TEST(RecordedEvents, HaveNoneThatTheReporterRefused)
{
    FakeEventReporter reporter;
    RecordedEvents events(reporter.failing(70));
    EXPECT_EQ(70, errorOf([&] { events.report("Tool", 1, 0, 10002, {}); }));
    EXPECT_THAT(events.events(), IsEmpty());
}

} // namespace
