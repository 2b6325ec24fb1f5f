#include "system/output_reader.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

/// Standard output leads to something else while one of these lives.
class OutputInto {
public:
    explicit OutputInto(int descriptor) : before_(dup(STDOUT_FILENO))
    {
        std::fflush(stdout);
        dup2(descriptor, STDOUT_FILENO);
    }
    ~OutputInto()
    {
        dup2(before_, STDOUT_FILENO);
        close(before_);
    }
    OutputInto(const OutputInto&) = delete;
    OutputInto& operator=(const OutputInto&) = delete;

private:
    int before_;
};

TEST(OutputHasAReader, UntilNobodyHasTheOtherEndOfItsPipe)
{
    int ends[2];
    ASSERT_EQ(0, pipe(ends));
    const int otherReader = dup(ends[0]);
    bool withBoth = false;
    bool withOne = false;
    bool withNone = true;
    {
        const OutputInto into(ends[1]);
        withBoth = outputHasAReader();
        close(ends[0]);
        withOne = outputHasAReader();
        close(otherReader);
        withNone = outputHasAReader();
    }
    close(ends[1]);
    EXPECT_TRUE(withBoth);
    EXPECT_TRUE(withOne);
    EXPECT_FALSE(withNone);
}

TEST(OutputHasAReader, WhoIsSlow)
{
    int ends[2];
    ASSERT_EQ(0, pipe2(ends, O_NONBLOCK));
    const char piece[4096] = {};
    while (write(ends[1], piece, sizeof piece) > 0) {
    }
    bool full = false;
    {
        const OutputInto into(ends[1]);
        full = outputHasAReader();
    }
    EXPECT_TRUE(full);
    close(ends[0]);
    close(ends[1]);
}

TEST(OutputHasAReader, WhereItIsNoPipe)
{
    const int nothing = open("/dev/null", O_WRONLY);
    bool has = false;
    {
        const OutputInto into(nothing);
        has = outputHasAReader();
    }
    EXPECT_TRUE(has);
    close(nothing);
}

} // namespace
