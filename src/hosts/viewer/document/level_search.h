#pragma once

#include "hosts/viewer/document/shared_timeline.h"
#include "hosts/viewer/document/view.h"

#include <chrono>
#include <memory>
#include <optional>

namespace viewer {

enum class Direction { down, up };

/// Looks for the next row on show whose level is a given one, among millions without reading their
/// texts, in steps that are as short as who asks wants them.
class LevelSearch {
public:
    /// From the row next to a place on, downwards or upwards; nothing is behind either end.
    LevelSearch(std::shared_ptr<const View> view, std::size_t place, Direction direction,
                std::int8_t level);

    /// Goes on until a moment; true when it is done.
    bool look(const timeline::Timeline& timeline, std::chrono::steady_clock::time_point until);

    /// Goes on in a view that grew from this one; `same` places at its top are as they were.
    void growTo(std::shared_ptr<const View> view, std::size_t same);

    /// The place of the row that was found; nothing for none.
    std::optional<std::size_t> found() const { return found_; }

private:
    void lookAtBlock(const timeline::Timeline& timeline);

    std::shared_ptr<const View> view_;
    Direction direction_;
    std::int8_t level_;
    std::size_t begin_; ///< of the places that are left
    std::size_t end_;
    std::optional<std::size_t> found_;
};

} // namespace viewer
