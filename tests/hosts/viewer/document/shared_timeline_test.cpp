#include "hosts/viewer/document/shared_timeline.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <stop_token>
#include <thread>

namespace viewer {
namespace {

using namespace std::chrono_literals;

TEST(SharedTimelineTest, TellsHowFarItIsWhileSomebodyWorks)
{
    SharedTimeline timeline;
    timeline.add({});
    std::promise<void> working;
    std::promise<void> end;
    std::jthread worker([&] {
        timeline.work([&](const timeline::Timeline&) {
            working.set_value();
            end.get_future().wait();
        });
    });
    working.get_future().wait();
    std::promise<void> told;
    std::jthread asker([&] {
        timeline.state();
        timeline.cancel();
        told.set_value();
    });
    EXPECT_EQ(std::future_status::ready, told.get_future().wait_for(20s));
    end.set_value();
}

TEST(SharedTimelineTest, LetsWhoLooksInBetweenTwoStepsOfWork)
{
    SharedTimeline timeline;
    timeline.add({});
    std::atomic<int> steps{0};
    std::jthread worker([&](const std::stop_token& stop) {
        while (!stop.stop_requested()) {
            timeline.work([&](const timeline::Timeline&) {
                ++steps;
                std::this_thread::sleep_for(2ms);
            });
        }
    });
    while (steps < 10) std::this_thread::yield();
    for (int look = 0; look < 20; ++look) {
        const int before = steps;
        int during = 0;
        timeline.look([&](const timeline::Timeline&) { during = steps; });
        EXPECT_LE(during - before, 3) << "the one at work, and one that was about to be";
    }
}

TEST(SharedTimelineTest, LetsThoseWhoWorkTakeTurns)
{
    SharedTimeline timeline;
    timeline.add({});
    while (!timeline.state().ended) std::this_thread::yield();
    std::atomic<int> steps{0};
    std::jthread worker([&](const std::stop_token& stop) {
        while (!stop.stop_requested()) {
            timeline.work([&](const timeline::Timeline&) {
                ++steps;
                std::this_thread::sleep_for(1ms);
            });
        }
    });
    while (steps < 10) std::this_thread::yield();
    for (int step = 0; step < 30; ++step) {
        const int before = steps;
        int during = 0;
        timeline.work([&](const timeline::Timeline&) { during = steps; });
        EXPECT_LE(during - before, 3) << "the one at work, and one that waited before";
    }
}

} // namespace
} // namespace viewer
