#include "runtime/windows_path.h"

#include <gtest/gtest.h>

namespace {

using Names = std::vector<std::string>;

TEST(FollowPath, GoesFromNameToName)
{
    struct Case {
        const char* because;
        Names from;
        const char* path;
        Names expected;
    };
    const Case cases[] = {
        {"the empty path stays", {"a"}, "", {"a"}},
        {"names of a path", {}, "x\\y", {"x", "y"}},
        {"both separators part names", {"a"}, "x/y\\z", {"a", "x", "y", "z"}},
        {"separators in a row, and at both ends", {}, "\\\\x//y\\", {"x", "y"}},
        {"a point stays", {"a"}, ".\\x\\.", {"a", "x"}},
        {"two points go back", {"a", "b"}, "..\\x", {"a", "x"}},
        {"two points stop at the top", {"a"}, "..\\..\\..\\x", {"x"}},
        {"three points are a name", {}, "...", {"..."}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        Names names = c.from;
        followPath(names, c.path);
        EXPECT_EQ(c.expected, names);
    }
}

TEST(BaseName, IsWhatStandsBehindTheLastSeparatorOfEitherKind)
{
    EXPECT_EQ("a.csv", baseName("C:\\Temp\\a.csv"));
    EXPECT_EQ("a.csv", baseName("/tmp/x\\y/a.csv"));
    EXPECT_EQ("a.csv", baseName("a.csv"));
    EXPECT_EQ("", baseName("C:\\Temp\\"));
}

TEST(BeginsWithDrive, KnowsALetterAndAColon)
{
    for (const char* path : {"C:", "c:\\x", "z:x"}) EXPECT_TRUE(beginsWithDrive(path)) << path;
    for (const char* path : {"", "C", ":", "1:", "\\C:", "@:", "[:"})
        EXPECT_FALSE(beginsWithDrive(path)) << path;
}

} // namespace
