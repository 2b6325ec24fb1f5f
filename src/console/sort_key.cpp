#include "console/sort_key.h"

#include "runtime/dates.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <charconv>

namespace {

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    return text;
}

unsigned char lowered(char letter)
{
    return static_cast<unsigned char>(letter >= 'A' && letter <= 'Z' ? letter - 'A' + 'a' : letter);
}

} // namespace

SortKey sortKeyOf(std::string_view cell)
{
    const std::string_view text = trimmed(cell);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc() && end == text.data() + text.size())
        return {SortKey::Kind::number, value, {}};
    if (text.find('/') != std::string_view::npos) {
        try {
            return {SortKey::Kind::date, parseDate(text).days, {}};
        } catch (const RunTimeError&) {
            // A text with a slash that is no date.
        }
    }
    return {SortKey::Kind::text, 0, text};
}

bool operator<(const SortKey& left, const SortKey& right)
{
    if (left.kind != right.kind) return left.kind < right.kind;
    if (left.kind != SortKey::Kind::text) return left.value < right.value;
    return std::lexicographical_compare(left.text.begin(), left.text.end(), right.text.begin(),
                                        right.text.end(),
                                        [](char a, char b) { return lowered(a) < lowered(b); });
}
