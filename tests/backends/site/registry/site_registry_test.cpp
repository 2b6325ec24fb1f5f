#include "backends/site/registry/site_registry.h"

#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

const std::string head = "Windows Registry Editor Version 5.00\r\n\r\n";
const std::string path = "Software\\Kelma Systems";

RegistryValue text(const std::string& value)
{
    return {registryType::text, {value.begin(), value.end()}};
}

RegistryValue number(std::uint8_t value)
{
    return {registryType::number, {value, 0, 0, 0}};
}

class SiteRegistryTest : public testing::Test {
protected:
    bool set(const std::string& name, const RegistryValue& value)
    {
        return registry.setValue(registryRoot::localMachine, path, name, value);
    }

    std::optional<RegistryValue> get(const std::string& name) const
    {
        return registry.value(registryRoot::localMachine, path, name);
    }

    std::vector<std::string> filesBeside() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(folder.path()))
            names.push_back(entry.path().filename().string());
        return names;
    }

    TemporaryFolder folder;
    SiteRegistry registry{RootFolder(folder.path())};
};

TEST_F(SiteRegistryTest, AMissingFileIsAnEmptyRegistry)
{
    EXPECT_TRUE(registry.keyExists(registryRoot::localMachine, ""));
    EXPECT_FALSE(registry.keyExists(registryRoot::localMachine, path));
    EXPECT_FALSE(get("x"));
    EXPECT_FALSE(set("x", number(1)));
    EXPECT_FALSE(registry.subkeys(registryRoot::localMachine, path));
    EXPECT_THAT(*registry.subkeys(registryRoot::localMachine, ""), testing::IsEmpty());
    EXPECT_FALSE(folder.exists("registry.reg")) << "asking makes nothing";
}

TEST_F(SiteRegistryTest, TheFirstWriteMakesTheFile)
{
    EXPECT_EQ(false, registry.createKey(registryRoot::localMachine, path + "\\"));
    EXPECT_EQ(true, registry.createKey(registryRoot::localMachine, path));
    EXPECT_TRUE(registry.setValue(registryRoot::localMachine, path + "\\", "Name", text("Orvan")));

    EXPECT_EQ(head + "[HKEY_LOCAL_MACHINE\\Software\\Kelma Systems]\r\n\"Name\"=\"Orvan\"\r\n\r\n",
              folder.read("registry.reg"));
}

TEST_F(SiteRegistryTest, MatchesNamesWithoutRegardToCase)
{
    registry.createKey(registryRoot::localMachine, path);
    set("Name", text("a"));

    EXPECT_TRUE(registry.keyExists(registryRoot::localMachine, "SOFTWARE\\KELMA SYSTEMS\\"));
    EXPECT_EQ(text(std::string("a\0", 2)), get("NAME"));
    EXPECT_TRUE(set("nAmE", text("b")));
    EXPECT_EQ(text(std::string("b\0", 2)), get("Name"));
    EXPECT_EQ(true, registry.createKey(registryRoot::localMachine, "software"));
}

TEST_F(SiteRegistryTest, AddsTheZeroThatAWriterLeavesOut)
{
    registry.createKey(registryRoot::localMachine, path);
    set("left out", text("ab"));
    set("written", text(std::string("ab\0", 3)));
    set("empty", text(""));

    EXPECT_EQ(text(std::string("ab\0", 3)), get("left out"));
    EXPECT_EQ(get("left out"), get("written"));
    EXPECT_EQ(text(""), get("empty"));
}

TEST_F(SiteRegistryTest, ListsSubkeysInTheOrderOfTheStore)
{
    for (const char* name : {"z", "a", "m\\below"})
        registry.createKey(registryRoot::localMachine, path + "\\" + name);

    EXPECT_THAT(*registry.subkeys(registryRoot::localMachine, path), ElementsAre("z", "a", "m"));
}

TEST_F(SiteRegistryTest, MakesNoKeyThatCannotBe)
{
    EXPECT_EQ(std::nullopt, registry.createKey(registryRoot::localMachine, "a\\\\b"));
    EXPECT_EQ(std::nullopt, registry.createKey(registryRoot::localMachine, std::string(256, 'x')));
    EXPECT_EQ(std::nullopt, registry.createKey(registryRoot::localMachine, "a\nb"));
    EXPECT_EQ(std::nullopt, registry.createKey(7, "a"));
    EXPECT_FALSE(registry.keyExists(7, "a"));
    registry.createKey(registryRoot::localMachine, path);
    EXPECT_FALSE(set("a\r\nb", number(1)));
    EXPECT_FALSE(set("caf\xE9", number(1)));
}

TEST_F(SiteRegistryTest, AWriteThatChangesNothingWritesNothing)
{
    registry.createKey(registryRoot::localMachine, path);
    set("x", number(1));
    const auto before = fs::last_write_time(folder / "registry.reg");
    fs::last_write_time(folder / "registry.reg", before - std::chrono::hours(1));

    EXPECT_TRUE(set("X", number(1)));
    EXPECT_EQ(true, registry.createKey(registryRoot::localMachine, path));

    EXPECT_EQ(before - std::chrono::hours(1), fs::last_write_time(folder / "registry.reg"));
}

TEST_F(SiteRegistryTest, KeepsWhatItDoesNotTouch)
{
    const std::string other =
        "; note\r\n[HKEY_CURRENT_USER\\x]\r\n\"l\"=hex(b):01,00,\\\r\n  02\r\n\r\n";
    folder.write("registry.reg", head + other + "[HKEY_LOCAL_MACHINE\\" + path + "]\r\n\r\n");

    set("x", number(1));

    EXPECT_EQ(head + other + "[HKEY_LOCAL_MACHINE\\" + path + "]\r\n\"x\"=dword:00000001\r\n\r\n",
              folder.read("registry.reg"));
}

TEST_F(SiteRegistryTest, SeesWhatOthersWrite)
{
    registry.createKey(registryRoot::localMachine, path);
    SiteRegistry other{RootFolder(folder.path())};

    for (std::uint8_t round = 1; round < 15; ++round) {
        ASSERT_TRUE(other.setValue(registryRoot::localMachine, path, "theirs", number(round)));
        ASSERT_EQ(number(round), get("theirs"));
        ASSERT_TRUE(set("ours", number(round)));
        ASSERT_EQ(number(round), other.value(registryRoot::localMachine, path, "ours"));
    }
    fs::remove(folder / "registry.reg");
    EXPECT_FALSE(get("ours"));
}

TEST_F(SiteRegistryTest, TwoWritersLoseNothing)
{
    registry.createKey(registryRoot::localMachine, path);
    const auto write = [&](const std::string& name) {
        SiteRegistry own{RootFolder(folder.path())};
        for (std::uint8_t i = 0; i < 20; ++i)
            own.setValue(registryRoot::localMachine, path, name + std::to_string(i), number(i));
    };
    std::thread first([&] { write("a"); });
    std::thread second([&] { write("b"); });
    first.join();
    second.join();

    for (std::uint8_t i = 0; i < 20; ++i) {
        EXPECT_EQ(number(i), get("a" + std::to_string(i)));
        EXPECT_EQ(number(i), get("b" + std::to_string(i)));
    }
    EXPECT_THAT(filesBeside(), testing::UnorderedElementsAre("registry.reg", "registry.reg.lock"));
}

TEST_F(SiteRegistryTest, RefusesADamagedFileAndLeavesIt)
{
    const std::string damaged = head + "[HKEY_LOCAL_MACHINE\\" + path + "]\r\n\"x\"=dwrd:1\r\n";
    folder.write("registry.reg", damaged);

    EXPECT_EQ("registry.reg line 4: a value of no known form", errorTextOf([&] { get("x"); }));
    EXPECT_EQ(321, errorOf([&] { set("x", number(2)); }));
    EXPECT_EQ(321, errorOf([&] { registry.createKey(registryRoot::localMachine, "new"); }));
    EXPECT_EQ(damaged, folder.read("registry.reg"));

    folder.write("registry.reg", head + "[HKEY_LOCAL_MACHINE\\" + path + "]\r\n\"x\"=dword:1\r\n");
    EXPECT_EQ(number(1), get("x")) << "mended, it reads again";
}

TEST_F(SiteRegistryTest, NeitherWritesNorRaisesWhereTheFileIsReadOnly)
{
    registry.createKey(registryRoot::localMachine, path);
    fs::permissions(folder / "registry.reg", fs::perms::owner_read);

    EXPECT_FALSE(set("x", number(1)));
    EXPECT_EQ(std::nullopt, registry.createKey(registryRoot::localMachine, "new"));
    EXPECT_FALSE(get("x"));
    EXPECT_TRUE(registry.keyExists(registryRoot::localMachine, path));
}

TEST_F(SiteRegistryTest, AFailedWriteLeavesTheFileAndWhatIsRead)
{
    registry.createKey(registryRoot::localMachine, path);
    set("x", number(1));
    const auto before = folder.read("registry.reg");
    rlimit limit{};
    ::getrlimit(RLIMIT_FSIZE, &limit);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{10, limit.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);

    const int error = errorOf([&] { set("x", number(2)); });

    ::setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ(61, error);
    EXPECT_EQ(before, folder.read("registry.reg"));
    EXPECT_EQ(number(1), get("x"));
    EXPECT_THAT(filesBeside(), testing::UnorderedElementsAre("registry.reg", "registry.reg.lock"));
}

TEST_F(SiteRegistryTest, KeepsTheFilesMode)
{
    registry.createKey(registryRoot::localMachine, path);
    const auto mode = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_write;
    fs::permissions(folder / "registry.reg", mode);

    set("x", number(1));

    EXPECT_EQ(mode, fs::status(folder / "registry.reg").permissions());
}

TEST_F(SiteRegistryTest, RefusesWhatIsNoPlainFileAtOnce)
{
    ASSERT_EQ(0, ::mkfifo((folder / "registry.reg").c_str(), 0666));
    EXPECT_THAT(errorTextOf([&] { registry.keyExists(registryRoot::localMachine, path); }),
                testing::EndsWith("registry.reg is no plain file"));
    fs::remove(folder / "registry.reg");
    const TemporaryFolder outside;
    fs::create_symlink(outside.write("a.reg", "x"), folder / "registry.reg");
    EXPECT_EQ(70, errorOf([&] { registry.keyExists(registryRoot::localMachine, path); }));
    fs::remove(folder / "registry.reg");
    fs::create_symlink(outside / "lock", folder / "registry.reg.lock");
    EXPECT_EQ(70, errorOf([&] { registry.createKey(registryRoot::localMachine, path); }));
    fs::remove(folder / "registry.reg.lock");
    ASSERT_EQ(0, ::mkfifo((folder / "registry.reg.lock").c_str(), 0666));
    EXPECT_EQ(70, errorOf([&] { registry.createKey(registryRoot::localMachine, path); }));
    EXPECT_FALSE(outside.exists("lock"));
    EXPECT_EQ("x", outside.read("a.reg"));
}

TEST_F(SiteRegistryTest, AWaitForTheLockIsToldAndEnds)
{
    using namespace std::chrono;
    std::string told;
    SiteRegistry waiting(
        RootFolder(folder.path()), [&](const std::string& text) { told += text; },
        milliseconds(1500));
    const int lock = ::open((folder / "registry.reg.lock").c_str(), O_RDWR | O_CREAT, 0666);
    ASSERT_EQ(0, ::flock(lock, LOCK_EX));
    const auto start = steady_clock::now();
    EXPECT_THAT(errorTextOf([&] { waiting.createKey(registryRoot::localMachine, path); }),
                testing::EndsWith("registry.reg and did not let go in time"));
    EXPECT_EQ("waiting for another program that holds " + (folder / "registry.reg"), told);
    EXPECT_LT(steady_clock::now() - start, seconds(8));
    ::close(lock);
    EXPECT_EQ(false, waiting.createKey(registryRoot::localMachine, path));
}

TEST_F(SiteRegistryTest, WritesNothingWhereWhatComesBeforeItFails)
{
    bool fails = false;
    int acts = 0;
    registry.beforeWrites([&] {
        ++acts;
        if (fails) throw RunTimeError(runTimeErrors::deviceIo);
    });
    EXPECT_EQ(false, registry.createKey(registryRoot::localMachine, "Software\\Before"));
    EXPECT_EQ(1, acts);
    fails = true;
    EXPECT_EQ(57,
              errorOf([&] { registry.createKey(registryRoot::localMachine, "Software\\After"); }));
    EXPECT_FALSE(registry.keyExists(registryRoot::localMachine, "Software\\After"));
    EXPECT_EQ(2, acts) << "reading needs nothing before it";
}

TEST_F(SiteRegistryTest, RaisesWhereTheSiteIsGone)
{
    SiteRegistry gone{RootFolder(folder.makeFolder("none"))};
    fs::remove(folder / "none");

    EXPECT_FALSE(gone.keyExists(registryRoot::localMachine, path));
    EXPECT_EQ(76, errorOf([&] { gone.createKey(registryRoot::localMachine, path); }));
}

} // namespace
