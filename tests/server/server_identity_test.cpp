#include "server/server_identity.h"

#include "core/registry_store.h"
#include "support/test_tool.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace {

std::vector<int> numbers(const ServerVersion& version)
{
    return {version.major, version.minor, version.release, version.build};
}

} // namespace

TEST(GetVersion, ReadsTheReleaseThatTheServerStored)
{
    TestTool tool;
    tool.registry.withNumber(baseKey, "MajorVersion", 4)
        .withNumber(baseKey, "MinorVersion", 2)
        .withNumber(baseKey, "ReleaseVersion", 1)
        .withNumber(baseKey, "BuildVersion", 32767)
        .withText(baseKey, "Version", "4.2(1) Build 32767");

    const ServerVersion version = mdlOrvan::getVersion(tool.context);

    EXPECT_EQ((std::vector<int>{4, 2, 1, 32767}), numbers(version));
    EXPECT_EQ("4.2(1) Build 32767", version.version);
    EXPECT_TRUE(tool.failures().empty());
}

TEST(GetVersion, GivesZerosAndNoTextWithoutAServer)
{
    TestTool tool;

    const ServerVersion version = mdlOrvan::getVersion(tool.context);

    EXPECT_EQ((std::vector<int>{0, 0, 0, 0}), numbers(version));
    EXPECT_EQ("", version.version);
    EXPECT_TRUE(tool.failures().empty());
}

TEST(GetVersion, LogsANumberPastSixteenBitsAndLeavesItAtZero)
{
    TestTool tool;
    tool.registry.withNumber(baseKey, "MajorVersion", 4)
        .withNumber(baseKey, "MinorVersion", 32768)
        .withNumber(baseKey, "ReleaseVersion", -32769)
        .withNumber(baseKey, "BuildVersion", 7)
        .withText(baseKey, "Version", "text");

    const ServerVersion version = mdlOrvan::getVersion(tool.context);

    EXPECT_EQ((std::vector<int>{4, 0, 0, 7}), numbers(version));
    EXPECT_EQ("text", version.version);
    EXPECT_THAT(tool.failures("[mdlOrvan]getVersion"),
                testing::ElementsAre("Err.Number = 6 Err.Description = Overflow",
                                     "Err.Number = 6 Err.Description = Overflow"));
}

TEST(GetVersion, IsTraced)
{
    TestTool tool;

    mdlOrvan::getVersion(tool.context);

    EXPECT_TRUE(tool.logged("Entering [mdlOrvan]getVersion_0"));
    EXPECT_TRUE(tool.logged("Exiting [mdlOrvan]getVersion_0"));
}
