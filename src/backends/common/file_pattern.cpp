#include "backends/common/file_pattern.h"

#include "text/utf8.h"

#include <algorithm>

namespace {

std::size_t stepOf(std::string_view text)
{
    return std::max<std::size_t>(utf8CharacterLength(text), 1);
}

/// Whether a pattern may stand for nothing once the name has ended.
bool acceptsEnd(std::string_view pattern)
{
    const std::size_t point = pattern.find_first_not_of("*?");
    return point == std::string_view::npos ||
           (pattern[point] == '.' && point + 1 < pattern.size() &&
            pattern.find_first_not_of("*?", point + 1) == std::string_view::npos);
}

/// What one step of the match leaves of pattern and name; false when they do not fit.
bool step(std::string_view& pattern, std::string_view& name)
{
    if (pattern.empty()) return false;
    if (pattern.front() == '?') {
        pattern.remove_prefix(1);
        if (name.front() != '.') name.remove_prefix(stepOf(name));
        return true;
    }
    if (pattern.front() != name.front()) return false;
    pattern.remove_prefix(1);
    name.remove_prefix(1);
    return true;
}

} // namespace

FilePattern::FilePattern(std::string_view pattern) : pattern_(foldCase(pattern))
{
    if (pattern_ == "*.*") pattern_ = "*";
}

bool FilePattern::matches(std::string_view name) const
{
    const auto folded = foldCase(name);
    std::string_view pattern = pattern_;
    std::string_view rest = folded;
    bool starred = false;
    std::string_view starPattern;
    std::string_view starRest;
    for (;;) {
        if (!pattern.empty() && pattern.front() == '*') {
            pattern.remove_prefix(1);
            starred = true;
            starPattern = pattern;
            starRest = rest;
            continue;
        }
        if (rest.empty() && (pattern.empty() || acceptsEnd(pattern))) return true;
        if (!rest.empty() && step(pattern, rest)) continue;
        if (!starred || starRest.empty()) return false;
        starRest.remove_prefix(stepOf(starRest));
        pattern = starPattern;
        rest = starRest;
    }
}
