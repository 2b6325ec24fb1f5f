#include "hosts/cli/naming/near_names.h"

#include "text/utf8.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <utility>

namespace cli {

namespace {

constexpr std::size_t mostNames = 3;
constexpr std::size_t longestTyped = 200;   ///< bytes; a longer one is no slip of the hand
constexpr std::size_t shortestTyped = 2;    ///< characters; one alone is near to anything
constexpr std::size_t shortestHeldText = 3; ///< characters; less is part of too many names

using CodePoints = std::u32string;

/// The characters in the one case by which names are compared; a byte that belongs to none stands
/// for itself.
CodePoints codePointsOf(std::string_view text)
{
    const std::string folded = foldCase(text);
    CodePoints letters;
    for (std::string_view rest = folded; !rest.empty();) {
        const std::size_t length = utf8CharacterLength(rest);
        letters += length == 0 ? static_cast<unsigned char>(rest.front())
                               : utf8CodePoint(rest.substr(0, length));
        rest.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return letters;
}

/// How many letters have to be put in, taken out, changed or swapped with their neighbour to make
/// one text of the other; no letter takes part in two swaps.
std::size_t slipsBetween(const CodePoints& one, const CodePoints& other)
{
    std::vector<std::size_t> beforeLast(other.size() + 1);
    std::vector<std::size_t> last(other.size() + 1);
    std::vector<std::size_t> row(other.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t at = 0; at < one.size(); ++at) {
        std::swap(beforeLast, last);
        std::swap(last, row);
        row[0] = at + 1;
        for (std::size_t to = 0; to < other.size(); ++to) {
            const std::size_t changed = last[to] + (one[at] == other[to] ? 0 : 1);
            row[to + 1] = std::min({changed, last[to + 1] + 1, row[to] + 1});
            if (at > 0 && to > 0 && one[at] == other[to - 1] && one[at - 1] == other[to])
                row[to + 1] = std::min(row[to + 1], beforeLast[to - 1] + 1);
        }
    }
    return row.back();
}

/// How far a name is from the typed one, in slips; what holds all of it is further than any slip
/// that counts. Nothing for one that is not near.
std::optional<std::size_t> slipsTo(const CodePoints& typed, const std::string& name)
{
    const std::size_t mostSlips = std::max<std::size_t>(typed.size() / 3, 1);
    if (name.size() > 2 * longestTyped) return std::nullopt;
    const CodePoints letters = codePointsOf(name);
    if (const std::size_t slips = slipsBetween(typed, letters); slips <= mostSlips) return slips;
    if (typed.size() >= shortestHeldText && letters.find(typed) != CodePoints::npos)
        return mostSlips + 1;
    return std::nullopt;
}

bool isPartOfAWord(char character)
{
    const bool isAscii = static_cast<unsigned char>(character) < 0x80;
    return !isAscii || (character >= '0' && character <= '9') ||
           (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
           std::string_view("-_.:/,+").find(character) != std::string_view::npos;
}

std::string quotedWhereNeeded(const std::string& name)
{
    const bool isWord = !name.empty() && std::all_of(name.begin(), name.end(), isPartOfAWord);
    return isWord ? name : "\"" + name + "\"";
}

} // namespace

std::vector<std::string> nearNames(std::string_view typed, const std::vector<std::string>& known)
{
    if (typed.size() > longestTyped) return {};
    const CodePoints letters = codePointsOf(typed);
    if (letters.size() < shortestTyped) return {};
    std::vector<std::string> names;
    std::optional<std::size_t> nearest;
    for (const std::string& name : known) {
        const auto slips = slipsTo(letters, name);
        if (!slips || (nearest && *slips > *nearest)) continue;
        if (!nearest || *slips < *nearest) names.clear();
        nearest = slips;
        if (names.size() < mostNames && std::find(names.begin(), names.end(), name) == names.end())
            names.push_back(name);
    }
    return names;
}

std::string namesToChoose(const std::vector<std::string>& names)
{
    std::string text;
    for (std::size_t at = 0; at < names.size(); ++at) {
        if (at > 0) text += at + 1 == names.size() ? " or " : ", ";
        text += quotedWhereNeeded(names[at]);
    }
    return text;
}

std::string didYouMean(std::string_view typed, const std::vector<std::string>& known,
                       const std::string& otherwise)
{
    const std::vector<std::string> names = nearNames(typed, known);
    return names.empty() ? otherwise : "; did you mean " + namesToChoose(names) + "?";
}

} // namespace cli
