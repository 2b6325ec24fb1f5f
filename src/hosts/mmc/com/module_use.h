#pragma once

#include <atomic>

namespace mmc {

/// Keeps the module in use for as long as it lives: each COM object has one.
class ModuleUse {
public:
    ModuleUse() { ++count_; }
    ~ModuleUse() { --count_; }
    ModuleUse(const ModuleUse&) = delete;
    ModuleUse& operator=(const ModuleUse&) = delete;

    /// Objects, and locks of a class factory, that are alive in the module.
    static long count() { return count_; }

    /// A lock of a class factory.
    static void lock() { ++count_; }
    static void unlock() { --count_; }

private:
    inline static std::atomic<long> count_{0};
};

} // namespace mmc
