#include "backends/jet/page_windows.h"

#include "runtime/run_time_error.h"

#include <algorithm>
#include <cerrno>
#include <mutex>
#include <sys/mman.h>

namespace jet {

namespace {

/// Whose pages this thread is at; null for none.
thread_local PageWindows* inUse = nullptr;

struct sigaction handlerBefore {};

void onFault(int number, siginfo_t* facts, void* context)
{
    const int error = errno;
    if (inUse != nullptr && inUse->takeFault(static_cast<char*>(facts->si_addr))) {
        errno = error;
        return;
    }
    if ((handlerBefore.sa_flags & SA_SIGINFO) != 0)
        handlerBefore.sa_sigaction(number, facts, context);
    else if (handlerBefore.sa_handler != SIG_DFL && handlerBefore.sa_handler != SIG_IGN)
        handlerBefore.sa_handler(number);
    else
        signal(number, SIG_DFL); // the store is tried again and ends the program as it would
}

void installHandler()
{
    static std::once_flag once;
    std::call_once(once, [] {
        struct sigaction handler {};
        handler.sa_sigaction = onFault;
        handler.sa_flags = SA_SIGINFO | SA_NODEFER;
        sigemptyset(&handler.sa_mask);
        sigaction(SIGBUS, &handler, &handlerBefore);
    });
}

} // namespace

PageWindows::PageWindows(int file) : file_(file)
{
    void* area = mmap(nullptr, mostWindows * windowBytes, PROT_NONE,
                      MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (area == MAP_FAILED) throw RunTimeError(runTimeErrors::outOfMemory);
    base_ = static_cast<char*>(area);
    installHandler();
}

PageWindows::~PageWindows()
{
    munmap(base_, mostWindows * windowBytes);
}

unsigned PageWindows::openWindow(std::uint32_t part)
{
    const auto oldest = std::min_element(
        windows_.begin(), windows_.end(),
        [](const Window& one, const Window& other) { return one.used < other.used; });
    const auto place = static_cast<unsigned>(oldest - windows_.begin());
    if (oldest->used != 0) places_[oldest->part] = 0;
    *oldest = {part, 1};
    if (!show(place)) {
        oldest->used = 0;
        throw RunTimeError(runTimeErrors::outOfMemory);
    }
    places_[part] = static_cast<std::uint8_t>(place + 1);
    return place;
}

bool PageWindows::show(std::size_t place) const
{
    const int kind = failed() ? MAP_PRIVATE | MAP_NORESERVE : MAP_SHARED;
    const auto offset = static_cast<off_t>(windows_[place].part * std::uint64_t{windowBytes});
    return mmap(base_ + place * windowBytes, windowBytes, PROT_READ | PROT_WRITE, kind | MAP_FIXED,
                file_, offset) != MAP_FAILED;
}

void PageWindows::goOn()
{
    failed_ = 0;
    for (std::size_t place = 0; place < mostWindows; ++place)
        if (windows_[place].used != 0 && !show(place)) {
            failed_ = 1;
            throw RunTimeError(runTimeErrors::outOfMemory);
        }
}

bool PageWindows::takeFault(char* at)
{
    if (at < base_ || at >= base_ + mostWindows * windowBytes) return false;
    if (!failed()) {
        failed_ = 1;
        for (std::size_t place = 0; place < mostWindows; ++place)
            if (windows_[place].used != 0 && !show(place)) return false;
        return true;
    }
    // The file has no such page any more: it reads as zeros.
    char* page = base_ + (at - base_) / static_cast<std::ptrdiff_t>(pageSize) *
                             static_cast<std::ptrdiff_t>(pageSize);
    return mmap(page, pageSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED, -1,
                0) != MAP_FAILED;
}

PageWindows::Use::Use(PageWindows& windows) : before_(inUse)
{
    inUse = &windows;
}

PageWindows::Use::~Use()
{
    inUse = before_;
}

} // namespace jet
