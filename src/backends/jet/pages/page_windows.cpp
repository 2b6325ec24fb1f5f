#include "backends/jet/pages/page_windows.h"

#include <algorithm>

namespace jet {

unsigned PageWindows::openWindow(std::uint32_t part)
{
    const auto oldest = std::min_element(
        windows_.begin(), windows_.end(),
        [](const Window& one, const Window& other) { return one.used < other.used; });
    const auto place = static_cast<unsigned>(oldest - windows_.begin());
    if (oldest->used != 0) places_[oldest->part] = 0;
    *oldest = {};
    memory_.show(place, part * std::uint64_t{windowBytes});
    oldest->part = part;
    places_[part] = static_cast<std::uint8_t>(place + 1);
    return place;
}

} // namespace jet
