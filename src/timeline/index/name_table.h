#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>

namespace timeline {

/// Texts that many rows share, by small numbers. Number 0 is the empty text.
class NameTable {
public:
    /// The number of every text past the 65,534th: what it is stands in the row's line alone.
    static constexpr std::uint16_t other = 65'535;

    NameTable();

    /// The number of a text, which it is given if it has none.
    std::uint16_t numberOf(std::string_view text);

    /// The text of a number; the empty one for `other`.
    std::string_view text(std::uint16_t number) const;

    std::size_t size() const { return texts_.size(); }

private:
    std::deque<std::string> texts_; ///< which the map's keys look at
    std::unordered_map<std::string_view, std::uint16_t> numbers_;
    std::string_view last_;
    std::uint16_t lastNumber_ = 0;
};

} // namespace timeline
