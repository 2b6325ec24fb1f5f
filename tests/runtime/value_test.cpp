#include "runtime/value.h"

#include "support/error_of.h"

#include <gtest/gtest.h>

namespace {

TEST(Value, ConvertsToANumberAsAnAssignmentDoes)
{
    EXPECT_EQ(0, valueAsInteger32(Empty{}));
    EXPECT_EQ(-1, valueAsInteger32(true));
    EXPECT_EQ(2, valueAsInteger32(2.5));
    EXPECT_EQ(4, valueAsInteger32(3.5));
    EXPECT_EQ(5050, valueAsInteger32(std::string(" 5050")));
    EXPECT_EQ(38634, valueAsInteger32(Date{38634.25}));
    EXPECT_EQ(94, errorOf([] { valueAsInteger32(Null{}); }));
    EXPECT_EQ(13, errorOf([] { valueAsInteger32(std::string("many")); }));
    EXPECT_EQ(13, errorOf([] { valueAsInteger32(std::string()); }));
    EXPECT_EQ(13, errorOf([] { valueAsInteger32(Guid{"{1}"}); }));
    EXPECT_EQ(6, errorOf([] { valueAsInteger32(3e9); }));
    EXPECT_EQ(6, errorOf([] { valueAsInteger16(40000); }));
}

TEST(Value, TakesAnyNumberButZeroAndTheWordsForABoolean)
{
    EXPECT_FALSE(valueAsBoolean(Empty{}));
    EXPECT_TRUE(valueAsBoolean(7));
    EXPECT_TRUE(valueAsBoolean(std::string("TRUE")));
    EXPECT_FALSE(valueAsBoolean(std::string("False")));
    EXPECT_TRUE(valueAsBoolean(std::string("-1")));
    EXPECT_EQ(13, errorOf([] { valueAsBoolean(std::string("perhaps")); }));
    EXPECT_EQ(94, errorOf([] { valueAsBoolean(Null{}); }));
}

TEST(Value, ConvertsToText)
{
    EXPECT_EQ("", valueAsText(Empty{}));
    EXPECT_EQ("-7", valueAsText(-7));
    EXPECT_EQ("True", valueAsText(true));
    EXPECT_EQ("{1}", valueAsText(Guid{"{1}"}));
    EXPECT_EQ("10/8/2005", valueAsText(dateOf(2005, 10, 8)));
    EXPECT_EQ(94, errorOf([] { valueAsText(Null{}); }));
}

} // namespace
