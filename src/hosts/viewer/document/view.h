#pragma once

#include "hosts/viewer/document/row_order.h"
#include "hosts/viewer/document/row_set.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>

namespace viewer {

/// Places on show: the first one, and the one behind the last.
using PlaceRange = std::pair<std::size_t, std::size_t>;

/// What is on show: rows of an order, by their places from the top. A view is made on one thread,
/// changes no more, and is shown by another.
struct View {
    std::shared_ptr<const RowOrder> order; ///< null before any rows were read
    std::optional<RowSet> chosen;          ///< unset where all rows are on show
    std::uint64_t wish = 0;                ///< the number of the wish that it answers
    bool complete = true;                  ///< whether all rows were asked for what they have

    /// Of the view before with rows that came since: how many places at the top are as they were.
    std::optional<std::size_t> grownFrom;

    std::size_t size() const
    {
        if (!order) return 0;
        return chosen ? chosen->count() : order->size();
    }

    /// The number in the order of the row at a place, which is less than `size()`.
    std::size_t rowAt(std::size_t place) const { return chosen ? chosen->at(place) : place; }

    /// How many rows on show stand before a row of the order: its place, if it is on show itself.
    std::size_t placeOf(std::size_t row) const { return chosen ? chosen->countBefore(row) : row; }

    bool shows(std::size_t row) const
    {
        return order && row < order->size() && (!chosen || chosen->has(row));
    }
};

} // namespace viewer
