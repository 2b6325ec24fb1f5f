#include "hosts/cli/reading/bar_chart.h"

#include "hosts/cli/reading/severity.h"
#include "hosts/cli/terminal/output.h"

#include <algorithm>
#include <vector>

namespace cli {

namespace {

constexpr std::size_t shortestBar = 10;
constexpr std::size_t shortestBarOfAll = 3;
constexpr std::size_t roomForNumbers = 40;
constexpr std::size_t gap = 2;     ///< on both sides of a bar
constexpr std::size_t overrun = 2; ///< what the least parts of a bucket may take beyond a bar

std::string named(std::uint64_t number, const char* one, const char* many)
{
    return groupedNumber(static_cast<long long>(number)) + (number == 1 ? one : many);
}

std::string totalOf(const BucketParts& parts)
{
    const std::uint64_t rows = parts.errors + parts.warnings + parts.others;
    return groupedNumber(static_cast<long long>(rows));
}

std::string numbersOf(const BucketParts& parts)
{
    const std::string text = totalOf(parts);
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
        const std::size_t full = length_ + overrun;
        return text_ + std::string(shown_ < full ? full - shown_ : 0, ' ');
    }

private:
    std::size_t length_;
    std::uint64_t largest_;
    bool colours_;
    std::string text_;
    std::size_t shown_ = 0;
};

using Buckets = std::vector<timeline::Histogram::Bucket>;

/// Whether the labels differ in their clocks alone.
bool areOfOneDay(const timeline::Histogram& histogram)
{
    const Buckets& buckets = histogram.buckets();
    return histogram.width() < timeline::millisecondsPerDay &&
           timeline::dayOf(buckets.front().begin) == timeline::dayOf(buckets.back().begin);
}

/// What of a chart has room in a width.
struct ChartParts {
    std::size_t labelFrom = 0; ///< of "2025-02-20 15:23:07.123"
    std::size_t labelLength;
    bool tellsTotals = true;
    bool tellsTrouble = true;
    std::size_t bar = shortestBar;
};

/// As much of a moment as tells buckets of a width apart.
std::size_t lengthOfLabel(timeline::Moment width)
{
    if (width >= timeline::millisecondsPerDay) return 10;
    if (width >= 60'000) return 16;
    return width >= 1000 ? 19 : 23;
}

std::size_t widest(const Buckets& buckets, std::string (*text)(const BucketParts&))
{
    std::size_t width = 0;
    for (const auto& bucket : buckets) width = std::max(width, text(partsOfBucket(bucket)).size());
    return width;
}

/// Leaves a narrow terminal's bars some room: numbers go that the bars tell as well, and what all
/// labels begin with.
ChartParts partsFor(const timeline::Histogram& histogram, std::size_t width)
{
    constexpr std::size_t lengthOfYear = 5; ///< "2025-"
    constexpr std::size_t lengthOfDay = 11; ///< "2025-02-20 "
    const Buckets& buckets = histogram.buckets();
    ChartParts parts;
    parts.labelLength = lengthOfLabel(histogram.width());
    const auto barBeside = [&](std::size_t numbers) {
        const std::size_t taken = parts.labelLength + gap + overrun + numbers;
        return width > taken ? width - taken : 0;
    };
    parts.bar = barBeside(roomForNumbers - gap - overrun);
    if (parts.bar > shortestBar) return parts;
    const auto fits = [&](std::size_t numbers) {
        parts.bar = barBeside(numbers);
        return parts.bar >= shortestBarOfAll;
    };
    const std::size_t totals = gap + widest(buckets, totalOf);
    parts.bar = std::min(barBeside(gap + widest(buckets, numbersOf)), shortestBar);
    if (parts.bar == shortestBar) return parts;
    parts.tellsTrouble = false;
    if (fits(totals)) return parts;
    parts.labelFrom = areOfOneDay(histogram) ? lengthOfDay : lengthOfYear;
    parts.labelLength -= std::min(parts.labelFrom, parts.labelLength);
    if (fits(totals)) return parts;
    parts.tellsTotals = false;
    if (!fits(0)) parts.bar = 1;
    return parts;
}

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
    const ChartParts shown = partsFor(histogram, width);
    std::string text;
    for (const auto& bucket : histogram.buckets()) {
        const BucketParts parts = partsOfBucket(bucket);
        Bar bar(shown.bar, largest, colours);
        bar.add(parts.errors, '!', "\033[31m");
        bar.add(parts.warnings, '+', "\033[33m");
        bar.add(parts.others, '#', "");
        const std::string label = timeline::momentText(bucket.begin);
        text.append(label.substr(shown.labelFrom, shown.labelLength)).append(gap, ' ');
        text += bar.text();
        if (shown.tellsTotals)
            text.append(gap, ' ').append(shown.tellsTrouble ? numbersOf(parts) : totalOf(parts));
        text += '\n';
    }
    return text;
}

} // namespace cli
