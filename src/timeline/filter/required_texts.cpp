#include "timeline/filter/required_texts.h"

#include <re2/filtered_re2.h>

#include <algorithm>

namespace timeline {

namespace {

constexpr int shortestText = 3; ///< shorter ones are in too many lines
constexpr std::size_t mostTexts = 4;

/// Whether an expression may occur in a line that has some of the texts, by their numbers.
bool mayOccur(const re2::FilteredRE2& filter, const std::vector<int>& texts)
{
    std::vector<int> expressions;
    filter.AllPotentials(texts, &expressions);
    return !expressions.empty();
}

bool hasAsciiAlone(const std::string& text)
{
    return std::all_of(text.begin(), text.end(), [](char byte) { return byte >= 0; });
}

/// Numbers of the texts, those that are left out first when others do: what is not ASCII, whose
/// case RE2 knows by other rules, and then the shorter ones.
std::vector<int> leastWantedFirst(const std::vector<std::string>& texts)
{
    std::vector<int> order(texts.size());
    for (std::size_t at = 0; at < order.size(); ++at) order[at] = static_cast<int>(at);
    std::stable_sort(order.begin(), order.end(), [&](int one, int other) {
        const std::string& first = texts[static_cast<std::size_t>(one)];
        const std::string& second = texts[static_cast<std::size_t>(other)];
        if (hasAsciiAlone(first) != hasAsciiAlone(second)) return !hasAsciiAlone(first);
        return first.size() < second.size();
    });
    return order;
}

} // namespace

std::vector<std::string> requiredTexts(const std::string& expression, const RE2::Options& options)
{
    // RE2 tells which texts matter, and answers whether some of them are enough; of which the
    // expression needs one can be found by asking.
    re2::FilteredRE2 filter(shortestText);
    int number = 0;
    if (filter.Add(expression, options, &number) != RE2::NoError) return {};
    std::vector<std::string> texts;
    filter.Compile(&texts);
    if (mayOccur(filter, {})) return {};

    const std::vector<int> order = leastWantedFirst(texts);
    const auto needed = [&](int text) {
        std::vector<int> others = order;
        std::erase(others, text);
        return !mayOccur(filter, others);
    };
    std::vector<int> chosen;
    const auto alone = std::find_if(order.rbegin(), order.rend(), needed);
    if (alone != order.rend()) {
        chosen = {*alone};
    } else {
        std::vector<int> others;
        for (const int text : order) {
            others.push_back(text);
            if (!mayOccur(filter, others)) continue;
            others.pop_back();
            chosen.push_back(text);
        }
    }
    std::vector<std::string> required;
    for (const int text : chosen) required.push_back(texts[static_cast<std::size_t>(text)]);
    if (required.size() > mostTexts ||
        !std::all_of(required.begin(), required.end(), hasAsciiAlone))
        return {};
    return required;
}

} // namespace timeline
