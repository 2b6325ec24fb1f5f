#include "hosts/mmc/console/contract.h"

#include "hosts/mmc/console/wide_text.h"

#include <atomic>
#include <cstdio>

namespace stand_in {

namespace {

// A handler of faults may not allocate: it counts, by code, in what is there already.
struct FaultCount {
    DWORD code;
    std::atomic<int> times;
};
FaultCount faultCounts[] = {
    {EXCEPTION_ACCESS_VIOLATION, 0}, {EXCEPTION_ILLEGAL_INSTRUCTION, 0},
    {EXCEPTION_STACK_OVERFLOW, 0},   {EXCEPTION_INT_DIVIDE_BY_ZERO, 0},
    {EXCEPTION_PRIV_INSTRUCTION, 0}, {0xC0000374 /* heap corruption */, 0},
};

LONG CALLBACK countFault(EXCEPTION_POINTERS* fault)
{
    for (auto& count : faultCounts)
        if (fault->ExceptionRecord->ExceptionCode == count.code) ++count.times;
    return EXCEPTION_CONTINUE_SEARCH;
}

} // namespace

void Contract::breach(std::string what)
{
    const std::lock_guard held(lock_);
    breaches_.push_back(std::move(what));
}

std::vector<std::string> Contract::breaches() const
{
    const std::lock_guard held(lock_);
    return breaches_;
}

bool Contract::onThread(const char* method)
{
    if (GetCurrentThreadId() == thread_) {
        const auto asked = admits;
        return !asked || asked(method);
    }
    breach(std::string(method) + " is called on another thread than the console's");
    return false;
}

std::optional<std::string> Contract::takeText(LPOLESTR text, const std::string& what)
{
    if (!text) return std::nullopt;
    std::string taken = narrow(text);
    IMalloc* memory = nullptr;
    if (FAILED(CoGetMalloc(1, &memory))) return taken;
    if (memory->DidAlloc(text) == 1)
        memory->Free(text);
    else
        breach(what + " is not of the task's memory");
    memory->Release();
    return taken;
}

FaultWatch::FaultWatch() : handler_(AddVectoredExceptionHandler(1, countFault)) {}

FaultWatch::~FaultWatch()
{
    RemoveVectoredExceptionHandler(handler_);
}

std::vector<std::string> FaultWatch::faults()
{
    std::vector<std::string> told;
    for (const auto& count : faultCounts) {
        char code[16];
        std::snprintf(code, sizeof code, "%08lX", count.code);
        for (int time = 0; time < count.times; ++time) told.emplace_back(code);
    }
    return told;
}

} // namespace stand_in
