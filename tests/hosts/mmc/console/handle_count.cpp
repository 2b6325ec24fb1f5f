#include "hosts/mmc/console/handle_count.h"

#include "hosts/mmc/console/mmc_headers.h"

#include <vector>

namespace stand_in {

namespace {

/// More than there can be of one kind.
constexpr long most = 65536;

/// How many of a kind are not in use.
template <class Make, class Destroy>
long freeOf(const Make& make, const Destroy& destroy)
{
    std::vector<decltype(make())> made;
    while (static_cast<long>(made.size()) < most) {
        const auto object = make();
        if (!object) break;
        made.push_back(object);
    }
    for (const auto object : made) destroy(object);
    return static_cast<long>(made.size());
}

struct Count {
    DWORD process = GetCurrentProcessId();
    long windows = 0;

    void add(HWND window)
    {
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        if (owner == process) ++windows;
    }
};

BOOL CALLBACK countWindow(HWND window, LPARAM count)
{
    reinterpret_cast<Count*>(count)->add(window);
    return TRUE;
}

BOOL CALLBACK countTree(HWND window, LPARAM count)
{
    countWindow(window, count);
    EnumChildWindows(window, countWindow, count);
    return TRUE;
}

/// Those of all threads, and those that take messages alone.
long countWindows()
{
    Count count;
    EnumWindows(countTree, reinterpret_cast<LPARAM>(&count));
    for (HWND window = nullptr;
         (window = FindWindowExW(HWND_MESSAGE, window, nullptr, nullptr)) != nullptr;)
        count.add(window);
    return count.windows;
}

} // namespace

HandleCount countHandles()
{
    HandleCount count;
    // Each handle of the process has a number of its own, a multiple of four; low ones come first.
    constexpr ULONG_PTR step = 4;
    constexpr ULONG_PTR highest = 4096 * step;
    for (ULONG_PTR number = step; number <= highest; number += step) {
        DWORD flags = 0;
        if (GetHandleInformation(reinterpret_cast<HANDLE>(number), &flags)) ++count.kernel;
    }
    count.windows = countWindows();
    count.gdi = most - freeOf([] { return CreateSolidBrush(0); }, DeleteObject);
    return count;
}

} // namespace stand_in
