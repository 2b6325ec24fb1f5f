#include "hosts/cli/reading/near_names.h"

#include "text/utf8.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace cli {

namespace {

constexpr std::size_t mostNames = 3;
constexpr std::size_t longestTyped = 200; ///< bytes; a longer one is no slip of the hand

/// How many bytes have to be put in, taken out or changed to make one text of the other.
std::size_t changesBetween(std::string_view one, std::string_view other)
{
    std::vector<std::size_t> row(other.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t at = 0; at < one.size(); ++at) {
        std::size_t before = std::exchange(row[0], at + 1);
        for (std::size_t to = 0; to < other.size(); ++to) {
            const std::size_t changed = before + (one[at] == other[to] ? 0 : 1);
            before = row[to + 1];
            row[to + 1] = std::min({changed, before + 1, row[to] + 1});
        }
    }
    return row.back();
}

} // namespace

std::vector<std::string> nearNames(std::string_view typed, const std::vector<std::string>& known)
{
    if (typed.empty() || typed.size() > longestTyped) return {};
    const std::string wanted = foldCase(typed);
    const std::size_t mostChanges = std::max<std::size_t>(wanted.size() / 3, 1);
    std::vector<std::pair<std::size_t, std::string>> near;
    for (const std::string& name : known) {
        if (name.size() > 2 * longestTyped) continue;
        const std::string folded = foldCase(name);
        const std::size_t changes = changesBetween(wanted, folded);
        const bool holds = folded.find(wanted) != std::string::npos;
        if (holds || changes <= mostChanges) near.emplace_back(holds ? 0 : changes, name);
    }
    std::stable_sort(near.begin(), near.end(),
                     [](const auto& one, const auto& other) { return one.first < other.first; });
    std::vector<std::string> names;
    for (auto& [changes, name] : near)
        if (names.size() < mostNames && std::find(names.begin(), names.end(), name) == names.end())
            names.push_back(std::move(name));
    return names;
}

std::string nearNamesHint(std::string_view typed, const std::vector<std::string>& known)
{
    std::string hint;
    const std::vector<std::string> names = nearNames(typed, known);
    for (std::size_t at = 0; at < names.size(); ++at) {
        if (at == 0)
            hint = names.size() == 1 ? "; near it is " : "; near it are ";
        else
            hint += at + 1 == names.size() ? " and " : ", ";
        hint.append(1, '"').append(names[at]).append(1, '"');
    }
    return hint;
}

} // namespace cli
