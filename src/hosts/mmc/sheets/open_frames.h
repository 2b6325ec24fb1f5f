#pragma once

#include <algorithm>
#include <mutex>
#include <vector>
#include <windows.h>

namespace mmc {

/// The windows of the sheets that are open, on whatever threads.
class OpenFrames {
public:
    void add(HWND frame)
    {
        const std::lock_guard lock(mutex_);
        if (!isIn(frame)) frames_.push_back(frame);
    }

    void remove(HWND frame)
    {
        const std::lock_guard lock(mutex_);
        frames_.erase(std::remove(frames_.begin(), frames_.end(), frame), frames_.end());
    }

    bool has(HWND frame)
    {
        const std::lock_guard lock(mutex_);
        return isIn(frame);
    }

private:
    bool isIn(HWND frame) const
    {
        return std::find(frames_.begin(), frames_.end(), frame) != frames_.end();
    }

    std::mutex mutex_;
    std::vector<HWND> frames_;
};

OpenFrames& openFrames();

} // namespace mmc
