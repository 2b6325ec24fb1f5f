#pragma once

#include "hosts/viewer/document/view.h"

#include <optional>

namespace viewer {

/// Walks over the rows on show from a place on. Rows that lie far apart are found one by one,
/// others walked to.
class PlaceWalk {
public:
    /// The view outlives it.
    PlaceWalk(const View& view, std::size_t place) : view_(&view), place_(place) {}

    /// The row at the place, which is less than the view's size; the place is the next one then.
    const timeline::IndexRow& next(const timeline::Timeline& timeline)
    {
        const std::size_t row = view_->rowAt(place_++);
        if (!walk_ || row - at_ > nearRows) {
            walk_ = view_->order->from(timeline, row);
            at_ = row;
        }
        for (; at_ < row; ++at_) walk_->next();
        ++at_;
        return *walk_->next();
    }

private:
    static constexpr std::size_t nearRows = 512; ///< about as many as are walked to find one

    const View* view_;
    std::size_t place_;
    std::optional<RowOrder::Walk> walk_;
    std::size_t at_ = 0; ///< the number of the walk's next row
};

} // namespace viewer
