#include "hosts/desktop/log/log_filter.h"

#include "console/list_view.h"
#include "runtime/text.h"

#include <algorithm>
#include <charconv>
#include <numeric>
#include <string_view>
#include <unordered_map>

namespace desktop {

namespace {

bool passes(ListItem row, const ColumnCondition& condition)
{
    if (condition.values.empty()) return true;
    const std::string_view value = row.subItem(condition.column);
    const bool named = std::find(condition.values.begin(), condition.values.end(), value) !=
                       condition.values.end();
    return named != condition.exclude;
}

bool isTraced(ListItem row, const LogColumns& columns,
              const std::vector<timeline::ComponentLevels>& macroTrace)
{
    const std::string_view component = row.subItem(columns.component);
    const std::string_view text = row.subItem(columns.level);
    int level = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), level);
    if (component.empty() || read.ec != std::errc()) return false;
    return std::any_of(macroTrace.begin(), macroTrace.end(), [&](const auto& traced) {
        return equalIgnoringCase(traced.component, component) &&
               std::find(traced.levels.begin(), traced.levels.end(), level) != traced.levels.end();
    });
}

bool holds(ListItem row, const TextMatcher& matcher)
{
    for (int column = 2; column <= row.subItemCount(); ++column)
        if (matcher.in(row.subItem(column))) return true;
    return matcher.in(row.note());
}

} // namespace

bool LogFilter::passesAll() const
{
    const auto empty = [](const TextRule& rule) { return rule.text.empty(); };
    return text.empty() && !macroTrace &&
           std::all_of(furtherTexts.begin(), furtherTexts.end(), empty) &&
           std::all_of(columns.begin(), columns.end(),
                       [](const auto& condition) { return condition.values.empty(); });
}

std::vector<std::uint32_t> LogFilter::positions(ListView& list) const
{
    const auto count = static_cast<std::uint32_t>(list.itemCount());
    std::vector<std::uint32_t> passing;
    if (passesAll()) {
        passing.resize(count);
        std::iota(passing.begin(), passing.end(), 1U);
        return passing;
    }
    const LogColumns fields = LogColumns::of(list);
    for (std::uint32_t position = 1; position <= count; ++position) {
        const ListItem row = list.shown(static_cast<int>(position));
        const bool wanted = std::all_of(columns.begin(), columns.end(), [&](const auto& condition) {
            return passes(row, condition);
        });
        if (!wanted || (macroTrace && !isTraced(row, fields, *macroTrace))) continue;
        const auto fits = [&](const TextMatcher& matcher, bool exclude) {
            return matcher.empty() || holds(row, matcher) != exclude;
        };
        if (fits(text, excludeText) &&
            std::all_of(furtherTexts.begin(), furtherTexts.end(),
                        [&](const TextRule& rule) { return fits(rule.text, rule.exclude); }))
            passing.push_back(position);
    }
    return passing;
}

bool rowHolds(ListView& list, std::uint32_t position, const TextMatcher& matcher)
{
    return holds(list.shown(static_cast<int>(position)), matcher);
}

std::vector<ColumnValue> valuesOf(ListView& list, int column)
{
    std::unordered_map<std::string_view, int> counts;
    for (int index = 1; index <= list.itemCount(); ++index)
        ++counts[list.item(index).subItem(column)];
    std::vector<ColumnValue> values;
    values.reserve(counts.size());
    for (const auto& [text, rows] : counts) values.push_back({std::string(text), rows});
    std::sort(values.begin(), values.end(), [](const auto& left, const auto& right) {
        return left.rows != right.rows ? left.rows > right.rows : left.text < right.text;
    });
    return values;
}

} // namespace desktop
