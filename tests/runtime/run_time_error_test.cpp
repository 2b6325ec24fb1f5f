#include "runtime/run_time_error.h"

#include <gtest/gtest.h>

namespace {

TEST(RunTimeError, HasTheStandardTextOfItsNumber)
{
    struct Case {
        int number;
        const char* text;
    };
    const Case cases[] = {
        {5, "Invalid procedure call or argument"},
        {6, "Overflow"},
        {9, "Subscript out of range"},
        {13, "Type mismatch"},
        {53, "File not found"},
        {58, "File already exists"},
        {62, "Input past end of file"},
        {70, "Permission denied"},
        {76, "Path not found"},
        {91, "Object variable or With block variable not set"},
        {94, "Invalid use of Null"},
        {424, "Object required"},
        {457, "This key is already associated with an element of this collection"},
        {12345, "Application-defined or object-defined error"},
        {0, "Application-defined or object-defined error"},
        {-1, "Application-defined or object-defined error"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.number);
        const RunTimeError error(c.number);
        EXPECT_EQ(c.number, error.number());
        EXPECT_EQ(c.text, error.description());
        EXPECT_STREQ(c.text, error.what());
    }
}

TEST(RunTimeError, KeepsATextOfItsOwn)
{
    const RunTimeError error(53, "C:\\x.txt is gone");
    EXPECT_EQ(53, error.number());
    EXPECT_EQ("C:\\x.txt is gone", error.description());
}

} // namespace
