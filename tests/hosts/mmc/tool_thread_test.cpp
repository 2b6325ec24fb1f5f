#include "hosts/mmc/tool_thread.h"

#include "runtime/run_time_error.h"
#include "support/error_of.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <atomic>
#include <memory>
#include <thread>
#include <vector>

namespace mmc {
namespace {

using testing::ElementsAre;

/// Handles messages until something holds, for ten seconds at most.
bool pumpUntil(const std::function<bool()>& holds)
{
    const ULONGLONG end = GetTickCount64() + 10'000;
    while (!holds() && GetTickCount64() < end) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
    }
    return holds();
}

TEST(ToolThread, RunsACallOfItsOwnAtOnce)
{
    const ToolThread thread;
    bool ran = false;

    thread.run([&] { ran = true; });

    EXPECT_TRUE(ran);
    EXPECT_TRUE(thread.isCurrent());
}

TEST(ToolThread, RunsACallOfAnotherThreadOnItsOwnAndLetsThatWait)
{
    const ToolThread thread;
    DWORD ranOn = 0;
    std::atomic<bool> returned = false;

    std::thread other([&] {
        thread.run([&] { ranOn = GetCurrentThreadId(); });
        EXPECT_NE(0U, ranOn);
        EXPECT_FALSE(thread.isCurrent());
        returned = true;
    });

    EXPECT_TRUE(pumpUntil([&] { return returned.load(); }));
    other.join();
    EXPECT_EQ(GetCurrentThreadId(), ranOn);
}

TEST(ToolThread, GivesWhatACallRaisesToTheThreadThatWaits)
{
    const ToolThread thread;
    std::atomic<int> raised = 0;

    std::thread other([&] {
        raised = errorOf(
            [&] { thread.run([] { throw RunTimeError(runTimeErrors::permissionDenied); }); });
    });

    EXPECT_TRUE(pumpUntil([&] { return raised != 0; }));
    other.join();
    EXPECT_EQ(runTimeErrors::permissionDenied, raised);
}

TEST(ToolThread, RunsPostedCallsInTheirOrderWhenItsLoopComesToThem)
{
    const ToolThread thread;
    std::vector<int> ran;

    thread.post([&] { ran.push_back(1); });
    thread.post([&]() -> void {
        ran.push_back(2);
        throw RunTimeError(runTimeErrors::invalidCall);
    });
    thread.post([&] { ran.push_back(3); });
    EXPECT_THAT(ran, ElementsAre());

    EXPECT_TRUE(pumpUntil([&] { return ran.size() == 3; }));
    EXPECT_THAT(ran, ElementsAre(1, 2, 3));
}

TEST(ToolThread, DropsCallsThatItNoLongerComesToAndWhatTheyHold)
{
    const auto held = std::make_shared<int>(7);
    {
        const ToolThread thread;
        thread.post([held] { FAIL() << *held; });
        EXPECT_EQ(2, held.use_count());
    }
    EXPECT_EQ(1, held.use_count());
}

TEST(ToolThread, RunsMorePostedCallsThanAQueueOfMessagesHas)
{
    constexpr int calls = 15'000;
    const ToolThread thread;
    std::vector<int> ran;
    for (int call = 0; call < calls; ++call) thread.post([&ran, call] { ran.push_back(call); });

    EXPECT_TRUE(pumpUntil([&] { return ran.size() == calls; }));
    EXPECT_TRUE(std::is_sorted(ran.begin(), ran.end()));
}

TEST(ToolThread, DropsCallsThatComeAfterTheEndOfItsThread)
{
    const auto held = std::make_shared<int>(7);
    std::unique_ptr<ToolThread> thread;
    std::thread([&] { thread = std::make_unique<ToolThread>(); }).join();

    EXPECT_NO_THROW(thread->post([held] { FAIL() << *held; }));
    thread.reset();
    EXPECT_EQ(1, held.use_count());
}

TEST(ToolThread, MayGoInACallThatWasPostedToIt)
{
    auto thread = std::make_unique<ToolThread>();
    thread->post([&] { thread.reset(); });
    EXPECT_TRUE(pumpUntil([&] { return !thread; }));
}

} // namespace
} // namespace mmc
