#include "backends/windows/files/local_time.h"

Date localDate(const FILETIME& moment)
{
    constexpr int lastYear = 9999;
    SYSTEMTIME universal{};
    SYSTEMTIME local{};
    if (!::FileTimeToSystemTime(&moment, &universal) ||
        !::SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local) || local.wYear > lastYear)
        return {};
    return dateOf(local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond);
}

Date localDate(std::int64_t seconds)
{
    constexpr std::int64_t ticksASecond = 10'000'000;
    constexpr std::int64_t secondsFrom1601To1970 = 11'644'473'600;
    const std::int64_t ticks = (seconds + secondsFrom1601To1970) * ticksASecond;
    return localDate(FILETIME{static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)});
}
