#include "end_to_end/program.h"
#include "end_to_end/sample_site.h"
#include "support/places.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>

namespace {

namespace fs = std::filesystem;

using testing::Contains;
using testing::ElementsAre;
using testing::IsSupersetOf;

/// Brings the build into a folder of its own, as `cmake --install` does.
class Installation : public SampleSite {
protected:
    /// Installs what belongs to the command line below the prefix; with `destdir` the folder that
    /// stands before it for a while.
    void install(const std::string& prefix, const std::string& destdir = {})
    {
        const Outcome run = runProgram({"env", "DESTDIR=" + destdir, built::cmake, "--install",
                                        built::folder, "--prefix", prefix, "--component", "tool"});
        ASSERT_EQ(0, run.status) << run.out << run.err;
    }

    /// A gather of a sample server that the installed programs make.
    nlohmann::json gather(const fs::path& prefix) const
    {
        const std::string program = prefix / "bin" / "orvandiag";
        const std::string server = folder / "installed_sample";
        const Outcome made = runProgram({program, "sample", server, "--lines", "400"});
        EXPECT_EQ(0, made.status) << made.err;
        const Outcome gathered =
            runProgram({program, "--site", server, "--json", "gather", "frame", "--from",
                        "2025-02-20 15:42", "--hours", "2", "--to", target});
        EXPECT_EQ(0, gathered.status) << gathered.err;
        return gathered.json();
    }
};

std::vector<std::string> filesBelow(const fs::path& top)
{
    std::vector<std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(top))
        if (!entry.is_directory()) files.push_back(entry.path().lexically_relative(top));
    std::sort(files.begin(), files.end());
    return files;
}

TEST_F(Installation, GathersWithADatabaseAndACabinetUnderAnyPrefix)
{
    install(folder / "opt");
    const auto gathered = gather(folder / "opt");
    EXPECT_TRUE(fs::exists(gathered["database"].get<std::string>()));
    EXPECT_TRUE(fs::exists(gathered["cabinet"].get<std::string>()));
}

TEST_F(Installation, WorksWhereItsFolderIsMovedTo)
{
    install(folder / "opt");
    fs::rename(folder / "opt", folder / "moved");
    const auto gathered = gather(folder / "moved");
    EXPECT_TRUE(fs::exists(gathered["cabinet"].get<std::string>()));
}

TEST_F(Installation, IsMadeBelowAStagingFolder)
{
    install("/usr", folder / "staging");
    const auto files = filesBelow(folder / "staging");
    EXPECT_THAT(files, IsSupersetOf({
                           "usr/bin/orvandiag",
                           "usr/libexec/orvandiag/cabmaker",
                           "usr/share/bash-completion/completions/orvandiag",
                           "usr/share/fish/vendor_completions.d/orvandiag.fish",
                           "usr/share/man/man1/orvandiag-gather.1",
                           "usr/share/man/man1/orvandiag.1",
                           "usr/share/orvandiag/blankWPNDB.mdb",
                           "usr/share/orvandiag/help/index.html",
                           "usr/share/orvandiag/ZMKbrandingres_ENU.txt",
                           "usr/share/zsh/site-functions/_orvandiag",
                       }));
    const auto gathered = gather(folder / "staging" / "usr");
    EXPECT_TRUE(fs::exists(gathered["cabinet"].get<std::string>()));
}

TEST_F(Installation, GivesPeopleTheProgramsThatTheyCallAlone)
{
    install(folder / "opt");
    EXPECT_THAT(filesBelow(folder / "opt" / "bin"), ElementsAre("orvandiag"));
    const fs::path supplied = folder / "opt" / "share" / "orvandiag" / "cabmaker.exe";
    ASSERT_TRUE(fs::is_symlink(supplied));
    EXPECT_EQ(fs::canonical(folder / "opt" / "libexec" / "orvandiag" / "cabmaker"),
              fs::canonical(supplied));
}

TEST_F(Installation, HasEveryFileOfTheDataFolders)
{
    install(folder / "opt");
    const auto installed = filesBelow(folder / "opt" / "share" / "orvandiag");
    EXPECT_THAT(installed, Contains("help/index.html"));
    for (const auto& entry : fs::directory_iterator(checkout::data)) {
        if (!entry.is_directory()) continue;
        const std::string name = entry.path().filename();
        const std::string before = name == "languages" ? "" : name + "/";
        for (const auto& file : filesBelow(entry.path()))
            EXPECT_THAT(installed, Contains(before + file));
    }
}

} // namespace
