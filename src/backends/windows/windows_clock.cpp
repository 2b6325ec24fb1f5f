#include "backends/windows/windows_clock.h"

#include <algorithm>
#include <windows.h>

#include <timeapi.h>

namespace {

constexpr UINT finestStep = 1; // milliseconds

SYSTEMTIME localTime()
{
    SYSTEMTIME time{};
    ::GetLocalTime(&time);
    return time;
}

} // namespace

WindowsClock::WindowsClock()
{
    ::timeBeginPeriod(finestStep);
}

WindowsClock::~WindowsClock()
{
    ::timeEndPeriod(finestStep);
}

Date WindowsClock::now() const
{
    const SYSTEMTIME time = localTime();
    return dateOf(time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond);
}

float WindowsClock::timer() const
{
    const SYSTEMTIME time = localTime();
    const int seconds = (time.wHour * 60 + time.wMinute) * 60 + time.wSecond;
    return static_cast<float>(seconds + time.wMilliseconds / 1000.0);
}

void WindowsClock::sleep(int milliseconds)
{
    ::Sleep(static_cast<DWORD>(std::max(milliseconds, 0)));
}
