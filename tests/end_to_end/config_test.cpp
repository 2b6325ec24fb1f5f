#include "end_to_end/sample_site.h"
#include "support/places.h"

#include <gmock/gmock.h>

#include <algorithm>

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

    /// The person's file, in its folder.
    fs::path file() const
    {
        fs::create_directories(home / ".config/orvandiag");
        return home / ".config/orvandiag/config.toml";
    }

    std::string usualSite() const { return (home / ".local/share/orvandiag/site").string(); }

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

TEST_F(Config, TellsEachSettingAndWhereItComesFrom)
{
    const Words mine = {"HOME=" + home.string()};
    const Outcome usual = with(mine, {"config"});
    ASSERT_EQ(0, usual.status) << usual.err;
    EXPECT_EQ("No file: " + file().string() +
                  "\n"
                  "Setting      Value" +
                  std::string(usualSite().size() - 5, ' ') + "  From\n",
              usual.out.substr(0, usual.out.find("site ")));
    EXPECT_THAT(usual.out, HasSubstr("\nsite         " + usualSite() + "  default\n"));
    EXPECT_THAT(usual.out, HasSubstr("\ntool-folder  the site's"));

    write(file(), "color = \"never\"\nsite = \"~/voice01\"\n");
    const Words variables = {"HOME=" + home.string(), "ORVAN_LANGUAGE=fr"};
    const Outcome told = with(variables, {"--tool-folder", "/opt/x", "--json", "config"});
    ASSERT_EQ(0, told.status) << told.err;
    EXPECT_EQ("", told.err);
    EXPECT_EQ(nlohmann::json::parse(R"({"file":")" + file().string() + R"(","fileExists":true,
        "settings":[
        {"name":"site","value":")" + (home / "voice01").string() +
                                    R"(","from":"file","where":")" + file().string() + R"(:2"},
        {"name":"tool-folder","value":"/opt/x","from":"option","where":"--tool-folder"},
        {"name":"language","value":"fr","from":"environment","where":"ORVAN_LANGUAGE"},
        {"name":"color","value":"never","from":"file","where":")" +
                                    file().string() + R"(:1"},
        {"name":"pager","value":"less -R","from":"default","where":null}]})"),
              told.json());
    EXPECT_EQ(0, madeHere());
}

TEST_F(Config, GoesByTheFileOfXdgConfigHome)
{
    fs::create_directories(folder / "xdg/orvandiag");
    write(folder / "xdg/orvandiag/config.toml", "site = \"" + site.string() + "\"\n");
    const Words mine = {"HOME=" + home.string(), "XDG_CONFIG_HOME=" + (folder / "xdg").string()};
    EXPECT_EQ(0, with(mine, {"status"}).status);
    EXPECT_THAT(with(mine, {"--json", "language"}).json()["current"], "ENU");
    write(folder / "xdg/orvandiag/config.toml",
          "language = \"de\"\nsite = \"" + site.string() + "\"\n");
    EXPECT_THAT(with(mine, {"--json", "language"}).json()["current"], "DEU")
        << "a person's language counts before that of the site";
    EXPECT_EQ(1, with({"HOME=" + home.string()}, {"status"}).status) << "no site is there";
}

TEST_F(Config, ColoursRowsAsThePersonHasSet)
{
    const auto isColoured = [this](const char* color, const Words& options, const Words& more) {
        write(file(), "color = \"" + std::string(color) + "\"\n");
        Words variables = {"HOME=" + home.string(), "ORVAN_SITE=" + site.string()};
        variables.insert(variables.end(), more.begin(), more.end());
        Words words = {"read", "--level", "0-1", "--tail", "5"};
        words.insert(words.end(), options.begin(), options.end());
        const Outcome read = with(variables, words);
        EXPECT_EQ(0, read.status) << read.err;
        EXPECT_NE("", read.out);
        return read.out.find("\x1b[") != std::string::npos;
    };
    EXPECT_TRUE(isColoured("always", {}, {}));
    EXPECT_FALSE(isColoured("auto", {}, {})) << "a pipe";
    EXPECT_FALSE(isColoured("always", {"--color", "auto"}, {}));
    EXPECT_FALSE(isColoured("always", {}, {"ORVAN_COLOR=never"}));
    EXPECT_TRUE(isColoured("never", {"--color", "always"}, {"ORVAN_COLOR=never"}));
}

TEST_F(Config, TellsAMistakeInOneLineWithItsPlaceAndDoesNothing)
{
    const Words mine = {"HOME=" + home.string(), "ORVAN_SITE=" + site.string()};
    const struct {
        const char* text;
        const char* told;
    } cases[] = {
        {"# mine\nsite = /srv\n", ":2: this is no TOML: "},
        {"color = \"blue\"\n", ":1: color is auto, always or never, not \"blue\""},
        {"\nsite = 7\n", ":2: site takes a text in quotation marks"},
        {"site = \"voice01\"\ntool-folder = \"tools\"\n", ":2: tool-folder takes a whole path"},
    };
    for (const auto& c : cases) {
        write(file(), c.text);
        const std::string before = fingerprint();
        for (const Words& words : {Words{"config"}, Words{"cycle"}, Words{"--json", "status"}}) {
            const Outcome refused = with(mine, words);
            EXPECT_EQ(1, refused.status);
            EXPECT_EQ("", refused.out);
            EXPECT_THAT(refused.err, testing::StartsWith("orvandiag: " + file().string() + c.told));
            EXPECT_EQ(1, std::count(refused.err.begin(), refused.err.end(), '\n')) << refused.err;
        }
        EXPECT_EQ(before, fingerprint());
        for (const Words& words : {Words{"--help"}, Words{"--version"}, Words{"completion", "bash"},
                                   Words{"config", "--help"}})
            EXPECT_EQ(0, with(mine, words).status) << words.front();
    }
    fs::remove(file());
    const Outcome refused = with({"HOME=" + home.string(), "ORVAN_COLOR=blue"}, {"config"});
    EXPECT_EQ(1, refused.status);
    EXPECT_EQ("orvandiag: ORVAN_COLOR: color is auto, always or never, not \"blue\"\n",
              refused.err);
}

TEST_F(Config, WarnsOfASettingThatThereIsNot)
{
    write(file(), "colour = \"never\"\n");
    const Outcome warned = with({"HOME=" + home.string()}, {"config"});
    EXPECT_EQ(0, warned.status);
    EXPECT_EQ("orvandiag: " + file().string() +
                  ":1: there is no setting \"colour\"; there are site, tool-folder, language, "
                  "color, pager\n",
              warned.err);
}

TEST_F(Config, RefusesAFileThatCantBeRead)
{
    fs::create_directories(file());
    const Outcome refused = with({"HOME=" + home.string()}, {"config"});
    EXPECT_EQ(1, refused.status);
    EXPECT_THAT(refused.err,
                testing::StartsWith("orvandiag: " + file().string() + " can't be read: "));
}

TEST_F(Config, WithoutAHomeHasNoFile)
{
    const Outcome told = with({}, {"config"});
    EXPECT_EQ(0, told.status);
    EXPECT_THAT(told.out, HasSubstr("No file: the environment names no folder for it\n"));
    EXPECT_THAT(told.out, testing::ContainsRegex("\nsite +none +default\n"));
    EXPECT_TRUE(with({}, {"--json", "config"}).json()["file"].is_null());
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
