#pragma once

#include <algorithm>
#include <iterator>
#include <utility>

namespace timeline {

/// Sorts a range most of which is in its order already, such as rows of a log whose clock goes back
/// by milliseconds now and then: in proportion to its length. Any other range takes little longer
/// than by the usual way. Elements that neither is less of must be the same.
template <std::random_access_iterator Iterator, typename Less>
void sortNearlySorted(Iterator first, Iterator last, Less isLess)
{
    constexpr std::ptrdiff_t movesPerElement = 8;
    std::ptrdiff_t movesLeft = (last - first) * movesPerElement;
    for (Iterator at = first; at != last; ++at) {
        if (at == first || !isLess(*at, *std::prev(at))) continue;
        auto moved = std::move(*at);
        Iterator place = at;
        do {
            *place = std::move(*std::prev(place));
            --place;
        } while (--movesLeft > 0 && place != first && isLess(moved, *std::prev(place)));
        *place = std::move(moved);
        if (movesLeft <= 0) return std::sort(first, last, isLess);
    }
}

} // namespace timeline
