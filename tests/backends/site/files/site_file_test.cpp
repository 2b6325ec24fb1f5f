#include "backends/site/files/site_file.h"
#include "runtime/run_time_error.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

namespace {

struct SiteFile : testing::Test {
    /// What opening a file of the site raises; empty where it is opened.
    std::string failureOf(const std::string& path) const
    {
        try {
            openSiteFile(RootFolder(folder.path()), path, forReading, runTimeErrors::fileNotFound);
            return {};
        } catch (const RunTimeError& error) {
            return std::to_string(error.number()) + " " + error.description();
        }
    }

    TemporaryFolder folder;
};

TEST_F(SiteFile, WhatKeepsOneFromBeingOpenedIsToldWithItsName)
{
    folder.makeFolder("eventlogs/Application.jsonl");
    EXPECT_EQ("70 eventlogs/Application.jsonl: Permission denied",
              failureOf("eventlogs/Application.jsonl"));
    EXPECT_EQ("53 registry.reg: File not found", failureOf("registry.reg"));
    folder.write("registry.reg", "x");
    EXPECT_EQ("", failureOf("registry.reg"));
}

TEST_F(SiteFile, ANameThatIsToldAlreadyIsNotToldTwice)
{
    std::filesystem::create_symlink("/etc/passwd", folder / "registry.reg");
    const std::string failure = failureOf("registry.reg");
    EXPECT_THAT(failure, testing::StartsWith("70 Permission denied: "));
    EXPECT_EQ(failure.find("registry.reg"), failure.rfind("registry.reg"));
}

} // namespace
