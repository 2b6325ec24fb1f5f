#pragma once

#include <cstddef>
#include <cstdint>

/// Bytes that lie in a file, or in a part of one, read as they are asked for. Others may change the
/// file meanwhile.
class StoredBytes {
public:
    virtual ~StoredBytes() = default;

    /// How many there are now. Raises 57.
    virtual std::uint64_t size() const = 0;

    /// Reads from the offset `at` on. Gives how many bytes: fewer than `size` at the end alone.
    /// Raises 57, and 53 where the file is no longer to be had.
    virtual std::size_t read(char* into, std::size_t size, std::uint64_t at) const = 0;
};
