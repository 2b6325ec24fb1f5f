#pragma once

#include "timeline/index/index_row.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace timeline {

class Source;

/// Lines of rows that will be asked for soon, read file by file: where the rows of thousands of
/// files come in turn, opening the file of each row takes most of the time.
class RowsAhead {
public:
    using SourceOf = std::function<Source&(SourceNumber)>;

    explicit RowsAhead(SourceOf sourceOf) : sourceOf_(std::move(sourceOf)) {}

    /// The rows that will be asked for next, in this order, in place of those that were to come
    /// before. Nothing is read until one of them is.
    void expect(const std::vector<const IndexRow*>& rows);

    void clear() { rows_.clear(); }

    /// How many rows are best expected at a time: few at first, so that the first comes at once.
    std::size_t usualCount() const { return count_; }

    /// The line of a row, until the next call; nothing for a row that is none of the next ones, or
    /// whose line could not be read or has no room here.
    std::optional<std::string_view> line(const IndexRow& row);

private:
    struct Line {
        std::uint64_t begin = 0;
        std::size_t length = 0;
        bool isRead = false;
    };

    void readLines();

    SourceOf sourceOf_;
    std::vector<IndexRow> rows_;
    std::vector<Line> lines_; ///< of the rows; none while they are not read
    std::string bytes_;
    std::size_t next_ = 0; ///< that is asked for
    std::size_t count_ = fewest;

    static constexpr std::size_t fewest = 256;
    static constexpr std::size_t most = 65'536;
};

} // namespace timeline
