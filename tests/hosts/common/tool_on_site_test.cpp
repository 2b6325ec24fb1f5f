#include "hosts/common/tool_on_site.h"

#include "support/error_of.h"
#include "support/fakes/fake_desktop.h"
#include "support/temporary_folder.h"
#include "system/file_facts.h"

#include <gmock/gmock.h>

#include <unistd.h>

namespace {

namespace fs = std::filesystem;

/// A host without a face, on the site in a folder.
class HostOfSite final : public ToolOnSite {
public:
    HostOfSite(const std::string& folder, SiteUse use, Desktop& desktop)
        : ToolOnSite(folder, "", HostFacts{}, use, desktop)
    {}

    using ToolOnSite::forgetContext;
    using ToolOnSite::load;
    using ToolOnSite::startChanges;
    using ToolOnSite::unload;
};

struct ToolOnSiteTest : testing::Test {
    ToolOnSiteTest() { folder.makeFolder("drive_c"); }

    /// The names of what lies in the site, its folders' contents too.
    std::vector<std::string> contents() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(folder.path()))
            names.push_back(entry.path().lexically_relative(folder.path()).string());
        return names;
    }

    TemporaryFolder folder;
    FakeDesktop desktop;
};

TEST_F(ToolOnSiteTest, ALookLeavesNothingAndAChangeItsLog)
{
    {
        HostOfSite host(folder.path(), SiteUse::look, desktop);
        EXPECT_TRUE(host.looksOnly());
        host.load();
        host.unload();
    }
    EXPECT_THAT(contents(), testing::ElementsAre("drive_c"));
    {
        HostOfSite host(folder.path(), SiteUse::look, desktop);
        host.startChanges();
        EXPECT_FALSE(host.looksOnly());
        host.load();
        host.unload();
    }
    EXPECT_THAT(contents(), testing::Contains("drive_c/OrvanDiagnostics/LOGS"));
}

TEST_F(ToolOnSiteTest, TellsWhyTheDatabaseCouldNotBeOpened)
{
    HostOfSite host(folder.path(), SiteUse::look, desktop);
    EXPECT_EQ("", host.databaseFailure());
    host.load();
    EXPECT_NE("", host.databaseFailure());
    host.unload();
}

TEST_F(ToolOnSiteTest, AContextThatWasForgottenHasNothingOfTheOneBefore)
{
    HostOfSite host(folder.path(), SiteUse::look, desktop);
    host.context().g_strLogFolder = "C:\\Elsewhere";
    host.forgetContext();
    EXPECT_EQ("", host.context().g_strLogFolder);
}

TEST_F(ToolOnSiteTest, UnloadsOnceAndWithoutATurnThatDoesNotCome)
{
    HostOfSite host(folder.path(), SiteUse::look, desktop);
    int asked = 0;
    const auto refused = [&]() -> HeldTurn {
        ++asked;
        throw RunTimeError(runTimeErrors::permissionDenied);
    };
    host.unload(refused);
    EXPECT_EQ(0, asked) << "it is not loaded";
    host.load();
    host.unload(refused);
    host.unload(refused);
    EXPECT_EQ(1, asked);
}

TEST_F(ToolOnSiteTest, IsWritableWithTheRightsThatTheProcessActsWith)
{
    if (geteuid() != 0) GTEST_SKIP() << "needs two persons";
    fs::permissions(folder.path(), fs::perms(0755));
    HostOfSite host(folder.path(), SiteUse::look, desktop);
    EXPECT_TRUE(host.writable());
    ASSERT_EQ(0, seteuid(65534));
    EXPECT_FALSE(host.writable());
    ASSERT_EQ(0, seteuid(0));
    EXPECT_FALSE(mayWrite(folder / "none"));
}

} // namespace
