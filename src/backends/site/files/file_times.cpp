#include "backends/site/files/file_times.h"

#include "runtime/run_time_error.h"

#include <algorithm>

namespace {

constexpr std::string_view stampShape = "_dddddddd_dddddd";

bool hasStampShape(std::string_view text)
{
    return std::equal(
        text.begin(), text.end(), stampShape.begin(), stampShape.end(),
        [](char c, char shape) { return shape == 'd' ? c >= '0' && c <= '9' : c == shape; });
}

int number(std::string_view digits)
{
    int value = 0;
    for (const char digit : digits) value = value * 10 + (digit - '0');
    return value;
}

} // namespace

std::optional<Date> stampOfName(std::string_view name)
{
    const auto point = name.rfind('.');
    const auto stem = name.substr(0, point);
    if (stem.size() < stampShape.size()) return {};
    const auto stamp = stem.substr(stem.size() - stampShape.size());
    if (!hasStampShape(stamp)) return {};
    const auto part = [&](std::size_t start, std::size_t length) {
        return number(stamp.substr(start, length));
    };
    try {
        return dateOf(part(1, 4), part(5, 2), part(7, 2), part(10, 2), part(12, 2), part(14, 2));
    } catch (const RunTimeError&) {
        return {};
    }
}

Date creationTime(std::string_view name, const RootFolder& root, const std::string& path,
                  const PosixTimeZone& zone, Date modified)
{
    if (const auto stamp = stampOfName(name)) return *stamp;
    const auto birth = root.birth(path);
    return birth ? localDate(zone, birth->seconds) : modified;
}
