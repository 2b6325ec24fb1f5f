#include "backends/site/events/event_line.h"

#include <gtest/gtest.h>

namespace {

TEST(EventLine, TellsTheNumberAndTheFirstTextOfAnEvent)
{
    const auto event = parseEventLine(R"({"id":10004,"inserts":["GA - Trace","more"]})");
    ASSERT_TRUE(event);
    EXPECT_EQ(10004, event->id);
    EXPECT_EQ("GA - Trace", event->firstInsert);
}

TEST(EventLine, IsAnEventWithoutTextsToo)
{
    for (const char* line :
         {R"({"id":7})", R"({"id":7,"inserts":[]})", R"({"id":7,"inserts":[1]})"}) {
        const auto event = parseEventLine(line);
        ASSERT_TRUE(event) << line;
        EXPECT_EQ("", event->firstInsert) << line;
    }
}

TEST(EventLine, IsNoneWithoutANumberOrWithoutAnObject)
{
    for (const char* line : {"", "text", "[7]", R"({"id":"7"})", R"({"id":1.5})", R"({"id":7)"})
        EXPECT_FALSE(parseEventLine(line)) << line;
}

} // namespace
