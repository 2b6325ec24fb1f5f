#include "hosts/cli/reading/bar_chart.h"

#include "hosts/cli/reading/severity.h"
#include "hosts/cli/terminal/output.h"

#include <algorithm>

namespace cli {

namespace {

constexpr std::size_t shortestBar = 10;
constexpr std::size_t roomForNumbers = 40;

/// As much of a moment as tells buckets of a width apart.
std::string labelOf(timeline::Moment moment, timeline::Moment width)
{
    const std::string text = timeline::momentText(moment); // "2025-02-20 15:23:07.123"
    if (width >= timeline::millisecondsPerDay) return text.substr(0, 10);
    if (width >= 60'000) return text.substr(0, 16);
    return text.substr(0, width >= 1000 ? 19 : 23);
}

std::string named(std::uint64_t number, const char* one, const char* many)
{
    return groupedNumber(static_cast<long long>(number)) + (number == 1 ? one : many);
}

std::string numbersOf(const BucketParts& parts)
{
    const std::uint64_t rows = parts.errors + parts.warnings + parts.others;
    std::string text = groupedNumber(static_cast<long long>(rows));
    std::string trouble;
    if (parts.errors > 0) trouble = named(parts.errors, " error", " errors");
    if (parts.warnings > 0)
        trouble.append(trouble.empty() ? "" : ", ")
            .append(named(parts.warnings, " warning", " warnings"));
    return trouble.empty() ? text : text + " (" + trouble + ")";
}

class Bar {
public:
    Bar(std::size_t length, std::uint64_t largest, bool colours)
        : length_(length), largest_(largest), colours_(colours)
    {}

    void add(std::uint64_t rows, char sign, const char* colour)
    {
        if (rows == 0) return;
        const auto signs = std::max<std::uint64_t>(rows * length_ / largest_, 1);
        shown_ += static_cast<std::size_t>(signs);
        if (colours_) text_ += colour;
        text_.append(static_cast<std::size_t>(signs), sign);
        if (colours_ && *colour != '\0') text_ += "\033[0m";
    }

    /// Filled to its full length, which the least parts of a bucket may take it beyond.
    std::string text() const
    {
        return text_ + std::string(shown_ < length_ + 2 ? length_ + 2 - shown_ : 0, ' ');
    }

private:
    std::size_t length_;
    std::uint64_t largest_;
    bool colours_;
    std::string text_;
    std::size_t shown_ = 0;
};

} // namespace

BucketParts partsOfBucket(const timeline::Histogram::Bucket& bucket)
{
    BucketParts parts;
    for (const auto& [level, rows] : bucket.levels) {
        const Severity severity = severityOfLevel(level);
        (severity == Severity::error     ? parts.errors
         : severity == Severity::warning ? parts.warnings
                                         : parts.others) += rows;
    }
    return parts;
}

std::string barChart(const timeline::Histogram& histogram, std::size_t width, bool colours)
{
    std::uint64_t largest = 1;
    for (const auto& bucket : histogram.buckets()) largest = std::max(largest, bucket.rows);
    const std::size_t taken =
        labelOf(histogram.buckets().front().begin, histogram.width()).size() + roomForNumbers;
    const std::size_t length = width > taken + shortestBar ? width - taken : shortestBar;
    std::string text;
    for (const auto& bucket : histogram.buckets()) {
        const BucketParts parts = partsOfBucket(bucket);
        Bar bar(length, largest, colours);
        bar.add(parts.errors, '!', "\033[31m");
        bar.add(parts.warnings, '+', "\033[33m");
        bar.add(parts.others, '#', "");
        text.append(labelOf(bucket.begin, histogram.width())).append("  ");
        text.append(bar.text()).append("  ").append(numbersOf(parts)).append(1, '\n');
    }
    return text;
}

} // namespace cli
