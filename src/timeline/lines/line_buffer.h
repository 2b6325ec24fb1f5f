#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace timeline {

/// Whole lines that stand behind one another, and where each of them ends.
struct KnownLines {
    std::string_view bytes;
    const std::uint32_t* ends = nullptr; ///< the places of line feeds, counted from `begin`
    std::size_t count = 0;               ///< of the line feeds
    std::uint32_t begin = 0;             ///< of the bytes

    /// The place of a line feed among the bytes.
    std::size_t end(std::size_t line) const { return ends[line] - begin; }
};

/// Room for bytes of a file, and the places of those line feeds that were found among them.
struct LineBuffer {
    explicit LineBuffer(std::size_t size);

    /// Adds the places of the line feeds between two places.
    void findEnds(std::size_t from, std::size_t to);

    std::unique_ptr<char[]> bytes;
    std::size_t capacity;
    std::unique_ptr<std::uint32_t[]> ends; ///< places in the buffer, in their order
    std::size_t endCount = 0;
};

} // namespace timeline
