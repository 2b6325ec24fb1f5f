#include "end_to_end/sample_site.h"

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

struct BadInput : SampleSite {
    void expectOneLine(const Outcome& refused, int status, const std::string& part)
    {
        EXPECT_EQ(status, refused.status);
        EXPECT_EQ(1, std::count(refused.err.begin(), refused.err.end(), '\n')) << refused.err;
        EXPECT_THAT(refused.err, testing::StartsWith("orvandiag: "));
        EXPECT_THAT(refused.err, HasSubstr(part));
        EXPECT_EQ("", refused.out);
    }
};

TEST_F(BadInput, AFolderThatIsNoSiteIsRefused)
{
    for (const auto& place : {folder / "nowhere", folder}) {
        expectOneLine(orvandiag({"--site", place.string(), "status"}), 1, "is not a site");
        EXPECT_FALSE(fs::exists(folder / "drive_c"));
    }
}

TEST_F(BadInput, ADamagedRegistryIsRefusedWithItsLineAndLeftAlone)
{
    const std::string damaged =
        "Windows Registry Editor Version 5.00\n\n[HKEY_LOCAL_MACHINE\\Software]\n"
        "\"a\"=dword:xyz\n";
    write(site / "registry.reg", damaged);
    expectOneLine(run({"status"}), 1, "registry.reg line 4");
    EXPECT_EQ(damaged, read(site / "registry.reg"));
}

TEST_F(BadInput, ADamagedSiteFileIsRefusedWithItsLine)
{
    write(site / "site.ini", "[site]\ncomputer = A\ncodePage = many\n");
    expectOneLine(run({"status"}), 1, "site.ini line 3");
}

TEST_F(BadInput, AnUnknownProcessOrLogIsRefused)
{
    expectOneLine(run({"logs", "KoNothing"}), 1, "KoNothing");
    expectOneLine(run({"read", "diag_KoNothing_1.txt"}), 1, "can not be found");
    expectOneLine(run({"read", "C:\\..\\..\\..\\etc\\passwd"}), 1, "can not be found");
}

TEST_F(BadInput, WrongUsageEndsWithTwo)
{
    const std::vector<std::vector<std::string>> cases = {
        {},
        {"frobnicate"},
        {"read"},
        {"logs"},
        {"--colour", "status"},
        {"status", "now"},
        {"sample"},
        {"sample", "x", "--lines", "many"},
        {"sample", "x", "--lines", "0"},
        {"sample", "x", "--fields", "wide"},
    };
    for (const auto& words : cases) {
        SCOPED_TRACE(testing::PrintToString(words));
        expectOneLine(run(words), 2, "--help");
    }
}

TEST_F(BadInput, ASampleIsNotMadeOverSomething)
{
    const std::string before = fingerprint();
    expectOneLine(orvandiag({"sample", site.string()}), 1, site.string());
    EXPECT_EQ(before, fingerprint());
}

TEST_F(BadInput, ASiteWithoutADatabaseStartsAndSaysSo)
{
    fs::remove(site / "OrvanDirDb.sqlite");
    const Outcome status = runJson({"status"});
    EXPECT_EQ(0, status.status) << status.err;
    EXPECT_FALSE(status.json()["connected"]);
}

TEST_F(BadInput, AnEmptySiteShowsEmptyViews)
{
    const auto bare = folder / "bare";
    fs::create_directories(bare / "drive_c");
    const Outcome status = orvandiag({"--json", "--site", bare.string(), "status"});
    EXPECT_EQ(0, status.status) << status.err;
    EXPECT_EQ(0, status.json()["version"]["major"]);
    EXPECT_EQ(1u, orvandiag({"--json", "--site", bare.string(), "tree"}).json().size());
    expectOneLine(orvandiag({"--site", bare.string(), "cycle"}), 1, "BroadCast");
}

} // namespace
