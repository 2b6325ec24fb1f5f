#include "timeline/lines/passable_lines.h"

#include "timeline/lines/byte_words.h"
#include "timeline/lines/stamp.h"

#include <string_view>

namespace timeline {

namespace {

constexpr std::size_t dateWidth = 19; ///< of "2025-02-20 15:23:07"

/// Looks at the beginnings of lines, one after the other.
class PassableWalk {
public:
    PassableWalk(std::string_view lines, std::int32_t lastSecond, PassableLines& passable)
        : lines_(lines), last_(bytes::clockOrder(lastSecond)), passable_(passable)
    {}

    /// Looks at the line that begins at a place. False where no line from there on can be the one.
    bool look(std::size_t at)
    {
        if (at + dateWidth >= lines_.size()) return false;
        const std::uint64_t word = bytes::wordAt(lines_.data() + at);
        const std::uint64_t order = bytes::orderOf(word);
        if (bytes::isClock(word) && order >= last_ && order <= bytes::lastClockOrder && !dated_) {
            last_ = order;
            passTo(at);
            return true;
        }
        const bool goesOn = dated_ || !bytes::isClock(word) || order > bytes::lastClockOrder;
        return goesOn && lookAtOther(at);
    }

private:
    void passTo(std::size_t at)
    {
        passable_.bytes = at;
        passable_.count = number_++;
    }

    /// A line that has no time of day alone.
    bool lookAtOther(std::size_t at)
    {
        const std::string_view line = lines_.substr(at);
        if (line[4] == '-') {
            Stamp stamp;
            if (!readStamp(line.substr(0, dateWidth), stamp) || !stamp.dated) return false;
            dated_ = true;
            passTo(at);
            return true;
        }
        if (line[0] == '\n' || (line[0] == '\r' && line[1] == '\n'))
            passable_.empty.push_back(number_);
        ++number_;
        return true;
    }

    std::string_view lines_;
    std::uint64_t last_; ///< the clock of the line before, as a number that orders it
    PassableLines& passable_;
    std::uint32_t number_ = 0;
    bool dated_ = false; ///< whether a line had a date, on which those without one depend then
};

} // namespace

void findPassableLines(const KnownLines& lines, std::size_t place, std::int32_t lastSecond,
                       PassableLines& passable)
{
    passable.bytes = 0;
    passable.count = 0;
    passable.empty.clear();
    PassableWalk walk(lines.bytes, lastSecond, passable);
    if (!walk.look(0)) return;
    for (std::size_t line = 0; line < lines.count && lines.end(line) < place; ++line)
        if (!walk.look(lines.end(line) + 1)) return;
}

} // namespace timeline
