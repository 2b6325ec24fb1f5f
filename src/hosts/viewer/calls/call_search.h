#pragma once

#include "hosts/viewer/calls/call_rows.h"
#include "hosts/viewer/document/row_order.h"

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace viewer {

/// Looks for the rows of a call among all rows, in steps that are as short as who asks wants them.
///
/// It looks from a moment on in both directions, as a call's rows stand near each other: they are
/// there at once, while millions of others are still looked at. Where rows come it goes on from the
/// first of these.
class CallSearch {
public:
    /// The most rows that are kept of a call.
    static constexpr std::size_t mostRows = 1'000'000;

    /// `id` is in UTF-8, and not empty.
    CallSearch(const timeline::Timeline& timeline, std::shared_ptr<const RowOrder> order,
               std::string id, timeline::Moment around);

    /// Goes on until a moment; true when there is nothing more to look at.
    bool goOn(const timeline::Timeline& timeline, std::chrono::steady_clock::time_point until);

    /// Goes on with an order that grew from this one and has `same` rows at the top as they were.
    void growTo(const timeline::Timeline& timeline, std::shared_ptr<const RowOrder> order,
                std::size_t same);

    /// How many rows were found so far.
    std::size_t count() const { return before_.size() + behind_.size(); }

    /// The rows so far.
    CallRows rows() const;

private:
    /// A row, and its number in the order.
    struct Found {
        CallRow row;
        std::size_t number;
    };

    void beginAnew(const timeline::Timeline& timeline);
    bool isDone() const;
    void lookDown(const timeline::Timeline& timeline);
    void lookUp(const timeline::Timeline& timeline);
    std::optional<CallRow> look(const timeline::Timeline& timeline, const timeline::IndexRow& row);

    std::shared_ptr<const RowOrder> order_;
    std::string id_;
    timeline::Moment around_;
    std::vector<bool> hasCalls_; ///< of each source, whether its rows may have call ids
    std::size_t begin_ = 0;      ///< of the rows that were looked at
    std::size_t end_ = 0;
    std::optional<RowOrder::Walk> down_; ///< at `end_`
    std::vector<Found> before_;          ///< that were found upwards, the last one first
    std::vector<Found> behind_;          ///< that were found downwards
    std::vector<Found> block_;
    std::vector<std::string> processes_; ///< as they were found
    std::map<std::string, std::uint16_t, std::less<>> lanes_;
    timeline::Record record_;
};

} // namespace viewer
