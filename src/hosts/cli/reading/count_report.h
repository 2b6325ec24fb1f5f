#pragma once

#include "hosts/cli/reading/results.h"
#include "timeline/counts/calls.h"
#include "timeline/filter/filter.h"
#include "timeline/timeline.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace cli {

/// How what was counted is written.
enum class CountForm { table, json, csv };

/// Tells of counted rows instead of showing them. Each routine raises what reading rows raises.
class CountReport {
public:
    /// Tables are no wider than `width`, where there is one.
    CountReport(const timeline::Timeline& timeline, const ShownRows& rows, CountForm form,
                ResultTarget& target, std::optional<std::size_t> width)
        : timeline_(timeline), rows_(rows), form_(form), target_(target), width_(width)
    {}

    /// How many rows there are, lines without a form included.
    void total() const;

    /// How many rows have each value of a column.
    void byColumn(timeline::Column column) const;

    /// How many rows there are over time; bars with errors and warnings in front.
    void histogram() const;

    /// The calls with their first and last rows and their processes. Says, on standard error, when
    /// no row has a call id.
    void calls() const;

private:
    struct Cells;

    void write(const Cells& cells) const;
    Cells callCells(const std::vector<timeline::Call>& calls) const;

    const timeline::Timeline& timeline_;
    const ShownRows& rows_;
    CountForm form_;
    ResultTarget& target_;
    std::optional<std::size_t> width_;
};

} // namespace cli
