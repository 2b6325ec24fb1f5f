#pragma once

#include "hosts/mmc/console/mmc_headers.h"

#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace stand_in {

/// What holds between one console and its snap-in: the thread that both live on, which calls into
/// the snap-in are under way, and what the snap-in did against the console's documentation.
class Contract {
public:
    /// The calling thread is the console's.
    Contract() : thread_(GetCurrentThreadId()) {}

    /// On any thread.
    void breach(std::string what);
    std::vector<std::string> breaches() const;

    /// Whether `method` of the console is called on its thread; it is noted when it is not. A
    /// console that is in trouble refuses it all the same.
    bool onThread(const char* method);

    /// What happens first in each call of the console's methods: whether the console then does what
    /// it is asked. None: it does.
    std::function<bool(const char* method)> admits;

    /// Runs a call into the snap-in. What leaves it by an exception is noted and gives
    /// E_UNEXPECTED.
    template <class Body>
    HRESULT call(const std::string& name, Body&& body)
    {
        const UnderWay noted(*this, name);
        try {
            return body();
        } catch (...) {
            breach("an exception left " + name);
            return E_UNEXPECTED;
        }
    }

    /// The name of the innermost call into the snap-in; empty for none.
    std::string innermost() const { return underWay_.empty() ? std::string() : underWay_.back(); }

    /// Takes a text that the snap-in allocated for the console, and frees it. None for a null
    /// pointer; notes one that is not of the task's memory.
    std::optional<std::string> takeText(LPOLESTR text, const std::string& what);

private:
    class UnderWay {
    public:
        UnderWay(Contract& contract, std::string name) : contract_(contract)
        {
            contract_.underWay_.push_back(std::move(name));
        }
        ~UnderWay() { contract_.underWay_.pop_back(); }
        UnderWay(const UnderWay&) = delete;
        UnderWay& operator=(const UnderWay&) = delete;

    private:
        Contract& contract_;
    };

    DWORD thread_;
    std::vector<std::string> underWay_;
    mutable std::mutex lock_;
    std::vector<std::string> breaches_;
};

/// Hears, for as long as it lives, of faults of this process that no one should ever handle, such
/// as an access to memory that is not there. C++ exceptions are none.
class FaultWatch {
public:
    FaultWatch();
    ~FaultWatch();
    FaultWatch(const FaultWatch&) = delete;
    FaultWatch& operator=(const FaultWatch&) = delete;

    /// Those of all watches so far, as "C0000005".
    static std::vector<std::string> faults();

private:
    void* handler_;
};

} // namespace stand_in
