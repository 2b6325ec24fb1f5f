#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

namespace timeline {

/// The empty lines of a file, by their numbers: those that stand together take no more room than
/// one.
class EmptyLines {
public:
    /// Lines come in the order of the file.
    void add(std::uint32_t line)
    {
        const std::uint32_t before = runs_.empty() ? 0 : runs_.back().upTo();
        if (runs_.empty() || runs_.back().last + 1 != line) runs_.push_back({line, line, before});
        runs_.back().last = line;
    }

    /// Adds those of lines that stand behind so many others.
    void add(const EmptyLines& further, std::uint32_t linesBefore)
    {
        for (const Run& run : further.runs_) {
            add(linesBefore + run.first);
            runs_.back().last = linesBefore + run.last;
        }
    }

    /// How many stand before a line that is not empty.
    std::uint32_t before(std::uint32_t line) const
    {
        const auto behind = std::partition_point(runs_.begin(), runs_.end(),
                                                 [&](const Run& run) { return run.first < line; });
        return behind == runs_.begin() ? 0 : (behind - 1)->upTo();
    }

private:
    struct Run {
        std::uint32_t first;
        std::uint32_t last;
        std::uint32_t before; ///< empty lines in front of it

        std::uint32_t upTo() const { return before + last - first + 1; }
    };

    std::vector<Run> runs_;
};

} // namespace timeline
