#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace viewer {

/// Some of the rows of an order, by their numbers: a bit a row, and a count every 512 rows, so that
/// a member's place among the others, and the member of a place, are found at once.
class RowSet {
public:
    /// Tells of the next `rows` rows that they are members, or are none.
    void append(bool members, std::size_t rows = 1);

    /// Forgets what it was told of rows from one on.
    void truncate(std::size_t size);

    /// Of how many rows it was told.
    std::size_t size() const { return size_; }

    /// The number of members.
    std::size_t count() const { return count_; }

    bool has(std::size_t row) const
    {
        return row < size_ && (words_[row / bits] >> (row % bits) & 1) != 0;
    }

    /// How many members stand before a row.
    std::size_t countBefore(std::size_t row) const;

    /// The row of the member at a place from 0, which is less than `count()`.
    std::size_t at(std::size_t place) const;

    /// The first member from a row on, and the last one before a row.
    std::optional<std::size_t> nextFrom(std::size_t row) const;
    std::optional<std::size_t> lastBefore(std::size_t row) const;

private:
    static constexpr std::size_t bits = 64;
    static constexpr std::size_t wordsOfBlock = 8;

    std::vector<std::uint64_t> words_;
    std::vector<std::uint32_t> before_; ///< members before each block
    std::size_t size_ = 0;
    std::size_t count_ = 0;
};

} // namespace viewer
