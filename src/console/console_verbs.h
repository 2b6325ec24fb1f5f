#pragma once

#include "runtime/run_time_error.h"

#include <array>

/// The console's standard commands, by their numbers.
namespace consoleVerb {
constexpr int open = 0x8000;
constexpr int copy = 0x8001;
constexpr int paste = 0x8002;
constexpr int remove = 0x8003;
constexpr int properties = 0x8004;
constexpr int rename = 0x8005;
constexpr int refresh = 0x8006;
constexpr int print = 0x8007;
} // namespace consoleVerb

struct ConsoleVerb {
    int number = 0;
    bool enabled = false;
};

/// The standard commands that a selection offers: none until the snap-in enables some.
class ConsoleVerbs {
public:
    /// Raises 9 for a number that is no verb.
    ConsoleVerb& verb(int number)
    {
        for (auto& entry : verbs_)
            if (entry.number == number) return entry;
        throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    }

    bool enabled(int number) { return verb(number).enabled; }

private:
    std::array<ConsoleVerb, 8> verbs_{{{consoleVerb::open},
                                       {consoleVerb::copy},
                                       {consoleVerb::paste},
                                       {consoleVerb::remove},
                                       {consoleVerb::properties},
                                       {consoleVerb::rename},
                                       {consoleVerb::refresh},
                                       {consoleVerb::print}}};
};
