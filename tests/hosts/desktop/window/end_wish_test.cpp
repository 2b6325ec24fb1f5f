#include "hosts/common/look/end_wish.h"

#include "hosts/desktop/support/outside_view.h"
#include "hosts/desktop/support/test_window.h"
#include "support/places.h"
#include "system/file_descriptor.h"

#include <QProcess>
#include <QSessionManager>

#include <gmock/gmock.h>

#include <chrono>
#include <csignal>
#include <fstream>
#include <functional>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>

namespace desktop {

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

constexpr int patience = 60'000; ///< milliseconds

std::string fileText(const fs::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::ptrdiff_t linesOf(const fs::path& path)
{
    const std::string text = fileText(path);
    return std::count(text.begin(), text.end(), '\n');
}

/// A developer is one who may have gone: a statement that fails again and again ends by the signal
/// while the event loop waits for it.
TEST(EndWish, KnowsOfASignalBeforeTheEventLoopHearsOfIt)
{
    testApplication();
    EXPECT_FALSE(EndWish::signalled());
    {
        bool heard = false;
        const EndWish wish([&] { heard = true; });
        EXPECT_FALSE(EndWish::signalled());
        ASSERT_EQ(0, std::raise(SIGTERM));
        EXPECT_TRUE(EndWish::signalled());
        EXPECT_FALSE(heard);
        settle();
        EXPECT_TRUE(heard);
    }
    EXPECT_FALSE(EndWish::signalled()) << "of one that has gone";
}

/// A server whose event log was left in another language than its first one.
struct EndedFromOutside : testing::Test {
    EndedFromOutside()
    {
        std::string registry = fileText(server.site() + "/registry.reg");
        const std::string english = "Messaging\\\\ENU\\\\";
        for (auto at = registry.find(english); at != registry.npos; at = registry.find(english))
            registry.replace(at, english.size(), "Messaging\\\\JPN\\\\");
        registry += "\n[HKEY_LOCAL_MACHINE\\Software\\Kelma Systems\\Kelma Orvan\\"
                    "OrvanDiagnostics]\n\"OriginalEventLogLanguage\"=\"ENU\"\n";
        server.folder().write("site/registry.reg", registry);
    }

    std::string messageFile() const
    {
        return OutsideView(server.site())
            .registryValue("EventLog\\Application\\KoCSMgr", "EventMessageFile");
    }

    std::ptrdiff_t events() const
    {
        return linesOf(server.site() + "/eventlogs/Application.jsonl");
    }

    QStringList arguments(const std::string& what) const
    {
        QStringList all{QString::fromStdString(what), "--site",
                        QString::fromStdString(server.site())};
        if (!folderOfTool.empty()) all << "--tool-folder" << QString::fromStdString(folderOfTool);
        return all;
    }

    /// Starts the window, waits until it is ready, sends it a signal, and waits for its end.
    /// `meanwhile` happens behind the signal.
    void run(const std::string& what, int signal, const std::function<void()>& meanwhile = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        environment.insert("XDG_CONFIG_HOME", QString::fromStdString(server.folder() / "config"));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::SeparateChannels);
        process.start(QString::fromUtf8(built::consoleToEnd), arguments(what));
        ASSERT_TRUE(process.waitForStarted());
        while (!process.canReadLine())
            ASSERT_TRUE(process.waitForReadyRead(patience))
                << process.readAllStandardError().data();
        ASSERT_EQ("ready", process.readLine().trimmed());
        EXPECT_THAT(messageFile(), HasSubstr("\\JPN\\"));
        eventsOpen = events();
        ASSERT_EQ(0, ::kill(static_cast<pid_t>(process.processId()), signal));
        if (meanwhile) meanwhile();
        ASSERT_TRUE(process.waitForFinished(patience));
    }

    void expectUnloaded()
    {
        EXPECT_EQ(QProcess::NormalExit, process.exitStatus());
        EXPECT_EQ(0, process.exitCode()) << process.readAllStandardError().data();
        EXPECT_THAT(messageFile(), HasSubstr("\\ENU\\"));
        EXPECT_EQ(eventsOpen + 1, events()) << "the event of the end";
    }

    QApplication& application = testApplication();
    TestServer server{60'000};
    QProcess process;
    std::string folderOfTool; ///< of the person's choice; the site's where it is empty
    std::ptrdiff_t eventsOpen = 0;
};

TEST_F(EndedFromOutside, ASignalPutsBackWhatUnloadingPutsBack)
{
    run("idle", SIGTERM);
    expectUnloaded();
}

TEST_F(EndedFromOutside, SoDoesTheEndOfTheTerminal)
{
    run("idle", SIGHUP);
    expectUnloaded();
}

TEST_F(EndedFromOutside, SoDoesOneWhileABoxIsOpen)
{
    run("box", SIGTERM);
    expectUnloaded();
}

TEST_F(EndedFromOutside, AGatherIsCancelledAndKeepsWhatItRead)
{
    run("gather", SIGTERM);
    expectUnloaded();
    std::vector<fs::path> copies;
    for (const auto& entry : fs::recursive_directory_iterator(server.site() + "/drive_c/Temp"))
        if (entry.path().filename().string().find("_fmtd") != std::string::npos)
            copies.push_back(entry.path());
    ASSERT_EQ(1U, copies.size());
    const auto all = linesOf(server.logs() + "/" + server.currentLog("KoCSMgr"));
    EXPECT_GT(linesOf(copies.front()), 100);
    EXPECT_LT(linesOf(copies.front()), all);
}

TEST_F(EndedFromOutside, SoDoesOneWhileARefusedGatherIsOnShow)
{
    server.folder().write("gathered/disk1", "the person's");
    run("refused:" + (server.folder() / "gathered"), SIGTERM);
    expectUnloaded();
    EXPECT_EQ("the person's", server.folder().read("gathered/disk1"));
}

TEST_F(EndedFromOutside, SoDoesOneWhileAChangeWaitsForItsTurnAndTheChangeIsNotMade)
{
    const std::string lock = server.folder().write("site/changes.lock", "123\n");
    FileDescriptor held(::open(lock.c_str(), O_RDWR | O_CLOEXEC));
    ASSERT_EQ(0, ::flock(held.get(), LOCK_EX));
    const auto signalTime = [this] {
        return OutsideView(server.site())
            .registryValue("RoLogMgr\\BroadCast", "Cycle Diag File Time Set");
    };
    const std::string before = signalTime();
    run("wait", SIGTERM, [&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(1500));
        EXPECT_EQ(QProcess::Running, process.state()) << "what is put back is a change too";
        EXPECT_THAT(messageFile(), HasSubstr("\\JPN\\"));
        held.close();
    });
    expectUnloaded();
    EXPECT_EQ(before, signalTime());
    EXPECT_THAT(process.readAllStandardError().toStdString(),
                HasSubstr("orvandiag-console: waiting for another program (process 123)"));
}

TEST_F(EndedFromOutside, ThePersonsOwnToolFolderMayBeOfTheMachine)
{
    folderOfTool = server.folder() / "own";
    run("idle", SIGTERM);
    expectUnloaded();
    EXPECT_TRUE(fs::exists(server.folder() / "own/LOGS"));
    EXPECT_TRUE(fs::exists(server.folder() / "own/ZMKXML"));
}

TEST_F(EndedFromOutside, ASignalThatWasIgnoredStaysIgnored)
{
    const auto before = std::signal(SIGHUP, SIG_IGN);
    {
        const EndWish wish([] {});
        struct sigaction now = {};
        ::sigaction(SIGHUP, nullptr, &now);
        EXPECT_EQ(SIG_IGN, now.sa_handler);
    }
    std::signal(SIGHUP, before);
}

TEST(EndWish, HearsOfTheEndOfTheSession)
{
    testApplication();
    int heard = 0;
    const EndWish wish([&] { ++heard; });
    EXPECT_FALSE(wish.made());
    ASSERT_TRUE(QMetaObject::invokeMethod(
        qApp, "commitDataRequest", Qt::DirectConnection,
        QGenericArgument("QSessionManager&", static_cast<const void*>(&heard))));
    EXPECT_EQ(1, heard);
    EXPECT_TRUE(wish.made());
}

} // namespace

} // namespace desktop
