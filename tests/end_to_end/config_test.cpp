#include "end_to_end/sample_site.h"
#include "support/places.h"

#include <gmock/gmock.h>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using Words = std::vector<std::string>;

/// A person with a folder of their own, and nothing else in the environment but what a test gives.
struct Config : SampleSite {
    Config() { fs::create_directories(home); }

    /// Runs orvandiag with these variables alone, in a folder of the test.
    Outcome with(const Words& variables, const Words& words) const
    {
        Words all = {"env", "-i", "PATH=/usr/bin:/bin"};
        all.insert(all.end(), variables.begin(), variables.end());
        all.push_back(built::orvandiag);
        all.insert(all.end(), words.begin(), words.end());
        return runProgram(all, present.string());
    }

    /// What the folder holds in which the program is started.
    std::ptrdiff_t madeHere() const
    {
        return std::distance(fs::directory_iterator(present), fs::directory_iterator());
    }

    fs::path home = folder / "home";
    fs::path present = makeFolder(folder / "present");

private:
    static fs::path makeFolder(const fs::path& path)
    {
        fs::create_directories(path);
        return path;
    }
};

TEST_F(Config, WithoutAHomeThereIsNoUsualSiteAndNoFolderBelowThePresentOne)
{
    for (const Words& variables :
         {Words{}, Words{"HOME="}, Words{"HOME=here", "XDG_DATA_HOME=data"}}) {
        const Outcome refused = with(variables, {"status"});
        EXPECT_EQ(1, refused.status);
        EXPECT_EQ("orvandiag: no site is named, and there is no usual one, as HOME names no "
                  "folder; name one with --site or ORVAN_SITE\n",
                  refused.err);
        EXPECT_EQ(0, madeHere());
    }
    EXPECT_EQ(0, with({}, {"--site", site.string(), "status"}).status);
    EXPECT_EQ(0, with({"ORVAN_SITE=" + site.string()}, {"status"}).status);
    EXPECT_EQ(0, madeHere());
}

TEST_F(Config, WithoutAHomeAFileOfThisMachineIsReadAllTheSame)
{
    write(folder / "diag_KoNotify_20250220_150000.txt", "15:23:07:123,Conv,1,X,2,a line\n");
    const Outcome read =
        with({}, {"read", (folder / "diag_KoNotify_20250220_150000.txt").string()});
    EXPECT_EQ(0, read.status) << read.err;
    EXPECT_THAT(read.out, HasSubstr("a line"));
}

TEST_F(Config, SpeaksTheLanguageOfMessages)
{
    const auto titleWith = [this](const Words& variables) {
        Words all = variables;
        all.push_back("ORVAN_SITE=" + site.string());
        return with(all, {"--json", "language"}).json()["current"].get<std::string>();
    };
    write(site / "site.ini", "[site]\ncomputer = VOICE01\n");
    EXPECT_EQ("ENU", titleWith({}));
    EXPECT_EQ("FRA", titleWith({"LANG=fr_FR.UTF-8"}));
    EXPECT_EQ("DEU", titleWith({"LANG=fr_FR.UTF-8", "LC_MESSAGES=de_DE.UTF-8"}));
    EXPECT_EQ("JPN",
              titleWith({"LANG=fr_FR.UTF-8", "LC_MESSAGES=de_DE.UTF-8", "LC_ALL=ja_JP.UTF-8"}));
    EXPECT_EQ("ENU", titleWith({"LANG=fr_FR.UTF-8", "LC_ALL=C"}));
}

} // namespace
