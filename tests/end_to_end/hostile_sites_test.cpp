#include "end_to_end/program.h"
#include "end_to_end/site_record.h"
#include "support/places.h"

#include <gmock/gmock.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using Words = std::vector<std::string>;

constexpr const char* application = "eventlogs/Application.jsonl";
constexpr const char* logFolder = "drive_c/KelmaOrvan/Logs";
constexpr const char* toolFolder = "drive_c/OrvanDiagnostics";

std::string contentOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

void put(const fs::path& file, const std::string& content)
{
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
}

/// Sites that somebody sent, each made from the same sample, and a folder beside them that is none
/// of theirs: another server whole, so that whatever is led there finds what it looks for.
class HostileSites : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        char name[] = "/tmp/orvan_hostile_XXXXXX";
        box = new fs::path(mkdtemp(name));
        const Outcome made =
            orvandiag({"sample", (*box / "sound").string(), "--lines", "300"}, box->string());
        ASSERT_EQ(0, made.status) << made.err;
        fs::copy(*box / "sound", *box / "outside", fs::copy_options::recursive);
        const fs::path old = *box / "outside" / toolFolder / "LOGS/OrvanDiagnostics_old.LOG";
        put(old, "old");
        put(*box / "outside/old/OrvanDiagnostics_old.LOG", "old");
        for (const auto& file : {old, *box / "outside/old/OrvanDiagnostics_old.LOG"})
            fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::hours(9999));
        put(*box / "outside/startup.sh", "# commands\n");
    }

    static void TearDownTestSuite()
    {
        std::error_code none;
        fs::remove_all(*box, none);
        delete box;
    }

    HostileSites() : site(*box / "site"), outside(*box / "outside")
    {
        fs::remove_all(site);
        fs::remove_all(*box / "to");
        fs::copy(*box / "sound", site, fs::copy_options::recursive);
    }

    static std::vector<Words> commands()
    {
        return {{"status"},
                {"tree"},
                {"logs", "KoCSMgr"},
                {"read", "diag_KoCSMgr_1.txt"},
                {"cycle"},
                {"macro"},
                {"micro"},
                {"flags"},
                {"macro", "set", "--on", "X - Y"},
                {"reset"},
                {"settings", "--max-megabytes", "500"},
                {"event-language", "FRA"},
                {"language", "FRA"},
                {"about"},
                {"gather", "logs", "--event-log", "Application"},
                {"gather", "standard", "--to", (*box / "to").string()}};
    }

    Outcome run(const Words& words) const
    {
        Words all{"timeout", "60", built::orvandiag, "--site", site.string()};
        all.insert(all.end(), words.begin(), words.end());
        return runProgram(all, box->string());
    }

    /// Every command ends by itself, with an answer or a plain sentence, and leaves what is outside
    /// as it was.
    void expectNothingOutsideIsTouched(const std::string& because) const
    {
        SCOPED_TRACE(because);
        const auto before = recordOf(outside);
        for (const Words& words : commands()) {
            std::string line;
            for (const auto& word : words) line += word + " ";
            SCOPED_TRACE(line);
            fs::remove_all(*box / "to");
            const Outcome outcome = run(words);
            EXPECT_THAT(outcome.status, testing::AllOf(testing::Ge(0), testing::Le(2)))
                << outcome.err;
            const bool told = outcome.err.find("orvandiag: ") != std::string::npos;
            EXPECT_TRUE(outcome.status == 0 || told) << outcome.err;
            EXPECT_EQ(std::string::npos, outcome.err.find('\x1b'));
            EXPECT_TRUE(before == recordOf(outside));
            if (HasFailure()) return;
        }
    }

    /// Puts a link, or what else `make` makes, in the place of a part of the site.
    void replace(const std::string& part, const std::function<void(const fs::path&)>& make) const
    {
        fs::remove_all(site / part);
        fs::create_directories((site / part).parent_path());
        make(site / part);
    }

    static fs::path* box;
    fs::path site;
    fs::path outside;
};

fs::path* HostileSites::box = nullptr;

const std::vector<std::string>& parts()
{
    static const std::vector<std::string> all = {
        "site.ini",
        "registry.reg",
        "registry.reg.lock",
        "OrvanDirDb.sqlite",
        "OrvanDirDb.sqlite-journal",
        "OrvanDirDb.sqlite-wal",
        "OrvanDirDb.sqlite-shm",
        "eventlogs",
        application,
        "drive_c",
        "drive_c/Temp",
        "drive_c/KelmaOrvan",
        logFolder,
        toolFolder,
        std::string(toolFolder) + "/LOGS",
        std::string(toolFolder) + "/ZMKXML",
        std::string(toolFolder) + "/blankWPNDB.mdb",
        std::string(toolFolder) + "/cabmaker.exe",
        std::string(toolFolder) + "/ZMKbrandingres_FRA.txt",
    };
    return all;
}

TEST_F(HostileSites, ALinkInThePlaceOfAnyPartLeadsNowhere)
{
    for (const std::string& part : parts()) {
        std::string up = "../";
        for (const char c : part)
            if (c == '/') up += "../";
        for (const std::string& target :
             {up + "outside/" + part, (outside / "startup.sh").string()}) {
            fs::remove_all(site);
            fs::copy(*box / "sound", site, fs::copy_options::recursive);
            replace(part, [&](const fs::path& place) { fs::create_symlink(target, place); });
            expectNothingOutsideIsTouched(part + " -> " + target);
            if (HasFailure()) return;
        }
    }
}

TEST_F(HostileSites, APipeInThePlaceOfAnyPartIsNotWaitedFor)
{
    for (const std::string& part : parts()) {
        fs::remove_all(site);
        fs::copy(*box / "sound", site, fs::copy_options::recursive);
        replace(part, [&](const fs::path& place) { ::mkfifo(place.c_str(), 0666); });
        expectNothingOutsideIsTouched("a pipe: " + part);
        if (HasFailure()) return;
    }
}

TEST_F(HostileSites, ValuesOfTheSiteDoNotClimbOut)
{
    for (const std::string& line :
         {"toolFolder=" + outside.string(), "toolFolder=" + (outside / toolFolder).string(),
          std::string("toolFolder=C:\\..\\..\\outside"),
          "computer=$(touch " + outside.string() + ")",
          std::string("computer=../../outside/startup.sh"), std::string("user=a\x1b[2J;reboot")}) {
        put(site / "site.ini", "[site]\n" + line + "\n");
        expectNothingOutsideIsTouched(line);
    }
    EXPECT_THAT(run({"status"}).err, HasSubstr("site.ini line 2: "));
}

TEST_F(HostileSites, PathsInTheRegistryDoNotClimbOut)
{
    const std::string sound = contentOf(site / "registry.reg");
    for (const fs::path& place : {outside / logFolder, outside / "old", outside}) {
        std::string text;
        std::size_t from = 0;
        // Every text that is a path of a drive becomes one of the machine.
        for (auto at = sound.find("\"C:\\"); at != std::string::npos;
             at = sound.find("\"C:\\", from)) {
            text += sound.substr(from, at - from) + "\"" + place.string() + "\"";
            from = sound.find('"', at + 1) + 1;
        }
        put(site / "registry.reg", text + sound.substr(from));
        ASSERT_NE(sound, contentOf(site / "registry.reg"));
        expectNothingOutsideIsTouched("the registry names " + place.string());
        EXPECT_EQ(std::string::npos, run({"logs", "KoCSMgr"}).out.find("diag_KoCSMgr_2"))
            << "logs of another server, at " << place;
    }
}

TEST_F(HostileSites, NamesWithEscapesAreNames)
{
    for (const std::string name :
         {"diag_KoCSMgr_\x1b[2J.txt", "diag_KoCSMgr_a\nb.txt", "diag_KoCSMgr_;reboot.txt",
          "diag_KoCSMgr_\xff.txt", "diag_KoCSMgr_..\\..\\x.txt"})
        put(site / logFolder / name, "15:23:07:123,Conv,1,X,0,a\n");
    put(site / "eventlogs/System\x1b[2J.jsonl", "{}\n");
    expectNothingOutsideIsTouched("names");
    const Outcome onTerminal =
        runProgram({"script", "-qec",
                    std::string(built::orvandiag) + " --site " + site.string() + " logs KoCSMgr",
                    "/dev/null"});
    EXPECT_THAT(onTerminal.out, HasSubstr("diag_KoCSMgr_\\x1b[2J.txt"));
    EXPECT_EQ(std::string::npos, onTerminal.out.find('\x1b'));
}

TEST_F(HostileSites, ThePersonsOwnToolFolderMayBeOfTheMachine)
{
    const fs::path own = *box / "own";
    const Outcome outcome = run({"--tool-folder", own.string(), "reset"});
    EXPECT_EQ(0, outcome.status) << outcome.err;
    EXPECT_TRUE(fs::exists(own / "LOGS"));
    EXPECT_TRUE(fs::exists(own / "ZMKXML"));
    fs::remove_all(own);
}

} // namespace
