#include "backends/jet/pages/page_windows.h"

#include <algorithm>

namespace jet {

unsigned PageWindows::openWindow(std::uint32_t part)
{
    const auto oldest = std::min_element(
        windows_.begin(), windows_.end(),
        [](const Window& one, const Window& other) { return one.used < other.used; });
    const auto window = static_cast<unsigned>(oldest - windows_.begin());
    if (oldest->used != 0) windowOf_[oldest->part] = 0;
    *oldest = {};
    memory_.show(window, part * std::uint64_t{windowBytes});
    oldest->part = part;
    windowOf_[part] = static_cast<std::uint8_t>(window + 1);
    return window;
}

} // namespace jet
