#pragma once

#include "hosts/viewer/document/row_counts.h"
#include "hosts/viewer/document/row_names.h"
#include "hosts/viewer/document/row_order.h"
#include "hosts/viewer/document/row_set.h"
#include "timeline/filter/filter.h"

#include <array>
#include <chrono>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace viewer {

/// Asks all rows of an order, one step after the other, whether a choice takes them, and counts
/// them.
///
/// What the index or the names tell of a row is asked of those: some nanoseconds. Only where a
/// choice asks for more are its texts read. A row goes with the lines that belong to it, as in
/// `timeline::Filter`; there may be millions of them, so that a step may end between two.
class RowAsking {
public:
    /// `names` outlives it, and stays as it is meanwhile; `namesKnown` tells whether it knows those
    /// of all rows, without which processes and sources are not counted. Raises 5 for a choice that
    /// makes no sense.
    RowAsking(const timeline::Timeline& timeline, std::shared_ptr<const RowOrder> order,
              timeline::Choice choice, const RowNames& names, bool namesKnown);
    ~RowAsking();

    /// Asks rows until a moment; true when all were asked.
    bool ask(const timeline::Timeline& timeline, std::chrono::steady_clock::time_point until);

    /// Goes on with an order that grew from this one, all of whose rows were asked: `ask` asks the
    /// rows that came. `names` knows theirs if it knew those of all.
    void growTo(const timeline::Timeline& timeline, std::shared_ptr<const RowOrder> order);

    /// How many rows at the top are as before it grew, and are taken as then.
    std::size_t same() const { return same_; }

    /// Those of the rows asked so far that the choice takes.
    const RowSet& taken() const { return taken_; }

    /// The counts of the rows asked so far.
    RowCounts counts() const;

private:
    static constexpr std::size_t facets = facetColumns.size();

    /// What speaks against a row: a bit for each facet's column, and one for all else.
    using Against = unsigned;
    static constexpr Against all = 1U << facets;

    /// The number of a value among those of its facet; `none` for one that is not known yet.
    using Value = std::uint32_t;
    static constexpr Value none = ~Value{0};

    class Values;

    Against against(const timeline::Timeline& timeline, const timeline::IndexRow& row,
                    std::array<Value, facets>& values);
    Against againstTexts() const;
    bool fitsMacroTrace(Value component, std::int16_t level);
    Value value(const timeline::Timeline& timeline, const timeline::IndexRow& row,
                std::size_t facet);
    Value* knownValue(const timeline::IndexRow& row, std::size_t facet);
    bool reads(const timeline::Timeline& timeline, const timeline::IndexRow& row);
    std::size_t askLine(const timeline::Timeline& timeline);
    void passLine();
    void beginRow(const timeline::Timeline& timeline, const timeline::IndexRow& first);
    std::size_t searchLine(const timeline::Timeline& timeline, const timeline::IndexRow& line);
    void endRow();
    bool goesOn(std::uint32_t source) const;
    enum class Counting { add, remove };
    bool takes(Counting counting);
    void coverTimes(const timeline::Timeline& timeline);

    std::shared_ptr<const RowOrder> order_;
    std::shared_ptr<const RowOrder> before_; ///< that it grew from; null where it did not
    RowSet takenBefore_;                     ///< of that
    std::size_t nextBefore_ = 0;             ///< the row of that which comes next
    std::size_t same_ = 0;
    const RowNames& names_;
    bool namesKnown_;
    RowOrder::Walk walk_;
    timeline::Filter rest_; ///< what neither a facet's column nor a macro trace tells
    timeline::Filter macroTrace_;
    std::array<std::unique_ptr<Values>, facets> values_;
    std::vector<std::vector<Value>> components_; ///< of each log, by the number in its names
    std::array<Value, 256> levels_;
    std::array<Value, 256> processes_; ///< by the number in the names
    std::array<Value, 256> sources_;
    std::unordered_map<std::uint64_t, bool> traced_; ///< components with levels
    RowSet taken_;

    /// The row that is asked, as far as its lines were.
    struct Row {
        timeline::IndexRow first;
        std::size_t lines = 0; ///< that were asked
        std::size_t known = 0; ///< that were asked before the order grew
        std::array<Value, facets> values;
        Against against = 0;                        ///< the row, but for its texts
        bool searched = false;                      ///< whether its texts tell
        timeline::Filter::Search* search = nullptr; ///< null before a line that could be read
        bool wasTaken = false;                      ///< before the order grew
    };
    Row row_;
    std::optional<RowOrder::Walk> passedFrom_; ///< the first line of a row that is passed over
    std::size_t passed_ = 0;                   ///< lines of it
    std::size_t position_ = 0;                 ///< of the row, among those of its log
    timeline::Record record_;
    std::string room_;
    bool recorded_ = false; ///< whether `record_` is of the line
    bool readable_ = false; ///< and could be read
    std::map<const CodePage*, timeline::Filter::Search> searches_;
    std::optional<timeline::Histogram> histogram_;
};

} // namespace viewer
