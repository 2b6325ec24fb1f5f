#pragma once

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

/// The result of a call that a driver may never come back from, made on a thread of its own; absent
/// when it took longer than `limit`. The thread then lives on by itself: when the call does come
/// back, `abandoned` takes its result there and clears up. Both own all that they use.
template <typename Call, typename Abandoned>
auto resultWithin(std::chrono::milliseconds limit, Call call, Abandoned abandoned)
    -> std::optional<decltype(call())>
{
    struct Shared {
        std::mutex mutex;
        std::condition_variable came;
        std::optional<decltype(call())> result;
        bool givenUp = false;
    };
    const auto shared = std::make_shared<Shared>();
    std::thread([shared, call = std::move(call), abandoned = std::move(abandoned)]() mutable {
        auto result = call();
        std::unique_lock lock(shared->mutex);
        if (shared->givenUp) {
            lock.unlock();
            abandoned(result);
            return;
        }
        shared->result = std::move(result);
        shared->came.notify_one();
    }).detach();
    std::unique_lock lock(shared->mutex);
    shared->came.wait_for(lock, limit, [&] { return shared->result.has_value(); });
    shared->givenUp = !shared->result;
    return std::move(shared->result);
}
