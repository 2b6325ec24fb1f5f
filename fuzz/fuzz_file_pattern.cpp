#include "require.h"

#include "backends/common/file_pattern.h"
#include "text/utf8.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Characters = std::vector<std::string>;

Characters charactersOf(std::string_view text)
{
    Characters characters;
    while (!text.empty()) {
        const std::size_t length = utf8CharacterLength(text);
        characters.emplace_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return characters;
}

/// The rules as they are told, without a thought to speed: whether what is left of a pattern fits
/// what is left of a name, by a table from their ends.
class NaiveMatch {
public:
    NaiveMatch(const std::string& pattern, const std::string& name)
        : pattern_(charactersOf(pattern == "*.*" ? "*" : pattern)), name_(charactersOf(name)),
          fits_(pattern_.size() + 1, std::vector<bool>(name_.size() + 1))
    {
        for (std::size_t p = pattern_.size() + 1; p-- > 0;)
            for (std::size_t n = name_.size() + 1; n-- > 0;) fits_[p][n] = fits(p, n);
    }

    bool holds() const { return fits_[0][0]; }

private:
    bool fits(std::size_t p, std::size_t n) const
    {
        const bool nameEnded = n == name_.size();
        if (p == pattern_.size()) return nameEnded;
        if (nameEnded && isMissingEnding(p)) return true;
        if (pattern_[p] == "*") return fits_[p + 1][n] || (!nameEnded && fits_[p][n + 1]);
        if (pattern_[p] == "?")
            return nameEnded || name_[n] == "." ? fits_[p + 1][n] : fits_[p + 1][n + 1];
        return !nameEnded && pattern_[p] == name_[n] && fits_[p + 1][n + 1];
    }

    /// Whether a point and nothing but wildcards are left.
    bool isMissingEnding(std::size_t p) const
    {
        if (pattern_[p] != "." || p + 1 == pattern_.size()) return false;
        while (++p < pattern_.size())
            if (pattern_[p] != "*" && pattern_[p] != "?") return false;
        return true;
    }

    Characters pattern_;
    Characters name_;
    std::vector<std::vector<bool>> fits_;
};

} // namespace

/// The pattern is the first line, the name the rest: the match agrees with the rules as told.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::size_t end = text.find('\n');
    const std::string_view pattern = text.substr(0, end);
    const std::string_view name = end == std::string_view::npos ? "" : text.substr(end + 1);
    const bool matches = FilePattern(pattern).matches(name);
    if (isUtf8(pattern) && isUtf8(name) && size < 512)
        require(matches == NaiveMatch(foldCase(pattern), foldCase(name)).holds());
    require(FilePattern("*").matches(name) && FilePattern("*.*").matches(name));
    if (name.find_first_of("*?") == std::string_view::npos)
        require(FilePattern(name).matches(name));
    return 0;
}
