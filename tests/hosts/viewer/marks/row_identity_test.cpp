#include "hosts/viewer/marks/row_identity.h"

#include <gtest/gtest.h>

namespace viewer {
namespace {

TEST(RowIdentity, OfARowThatIsNoLineIsThatOfItsFields)
{
    timeline::Record record;
    record.timeStamp = "00:00:01:000";
    record.source = "Conv";
    record.traceNumber = -1234567;
    record.component = "CallFlow";
    record.trace = "a trace";
    record.level = 3;
    // SHA-256 of the fields, a line each, as any other program makes it.
    EXPECT_EQ("110300e0b79dd353", textHash(record));
    record.traceNumber = -1234568;
    EXPECT_NE("110300e0b79dd353", textHash(record));
}

TEST(RowIdentity, OfALineIsThatOfItsBytes)
{
    timeline::Record record;
    record.whole = "a line";
    record.trace = "what was cut from it";
    EXPECT_EQ("31b9ee4a830b7558", textHash(record));
}

} // namespace
} // namespace viewer
