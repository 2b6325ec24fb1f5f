#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sample {

/// Numbers that look random and are the same for one seed on every machine and library.
class Random {
public:
    explicit Random(std::uint64_t seed);

    std::uint64_t next();

    /// A number from 0 to `bound` - 1; 0 for a bound of 0.
    std::uint32_t below(std::uint32_t bound);

    /// A number from `first` to `last`, both included.
    std::int64_t between(std::int64_t first, std::int64_t last);

    /// An element of a table.
    template <typename Table>
    const auto& of(const Table& table)
    {
        return table[below(static_cast<std::uint32_t>(std::size(table)))];
    }

private:
    std::array<std::uint64_t, 4> state_;
};

} // namespace sample
