#include "hosts/viewer/document/level_search.h"

#include "hosts/viewer/document/place_walk.h"

#include <algorithm>

namespace viewer {

namespace {

constexpr std::size_t placesOfBlock = 128;

} // namespace

LevelSearch::LevelSearch(std::shared_ptr<const View> view, std::size_t place, Direction direction,
                         std::int8_t level)
    : view_(std::move(view)), direction_(direction), level_(level),
      begin_(direction == Direction::down ? place + 1 > view_->size() ? view_->size() : place + 1
                                          : 0),
      end_(direction == Direction::down ? view_->size() : std::min(place, view_->size()))
{}

void LevelSearch::growTo(std::shared_ptr<const View> view, std::size_t same)
{
    view_ = std::move(view);
    begin_ = std::min(begin_, same);
    end_ = direction_ == Direction::down ? view_->size() : std::min(end_, view_->size());
}

bool LevelSearch::look(const timeline::Timeline& timeline,
                       std::chrono::steady_clock::time_point until)
{
    while (begin_ < end_ && !found_) {
        lookAtBlock(timeline);
        if (std::chrono::steady_clock::now() >= until) break;
    }
    return found_ || begin_ == end_;
}

/// Looks at the block of places that is next. Rows are walked downwards in either direction.
void LevelSearch::lookAtBlock(const timeline::Timeline& timeline)
{
    const std::size_t length = std::min(placesOfBlock, end_ - begin_);
    const std::size_t first = direction_ == Direction::down ? begin_ : end_ - length;
    PlaceWalk walk(*view_, first);
    for (std::size_t place = first; place < first + length; ++place) {
        const timeline::IndexRow& index = walk.next(timeline);
        // A line without a form has no level, and a row without a component none that means
        // anything.
        if (index.belongsToRowBefore() || index.component == 0 || index.level != level_) continue;
        found_ = place;
        if (direction_ == Direction::down) break;
    }
    if (direction_ == Direction::down)
        begin_ = first + length;
    else
        end_ = first;
}

} // namespace viewer
