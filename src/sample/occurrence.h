#pragma once

#include "sample/random.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace sample {

/// Somebody with a mailbox.
struct Subscriber {
    std::string_view name; ///< in Windows-1252
    int extension;
};

/// One time that a scenario happens: who takes part in it, on which port, under which call id.
struct Occurrence {
    Subscriber subscriber;
    int port = 0;       ///< 1 to `portCount`; 0 away from the ports
    std::string callId; ///< empty when there is no call, or when its id never came
    std::string caller;
    std::uint64_t key = 0; ///< what message and object identities come from
    int newMessages = 0;
    std::int64_t sequence = 0; ///< grows from one occurrence to the next

    int seconds = 0; ///< from its start to the trace at hand
    int waited = 0;  ///< the last pause between two traces that took a second or more
};

/// What happened before: occurrences in all, and calls on ports among them.
struct History {
    std::size_t occurrences = 0;
    std::size_t calls = 0;
};

/// Draws the facts of an occurrence, and counts it. The first calls on ports take call ids of each
/// length from 0 to 40 in turn.
Occurrence drawOccurrence(Random& random, int port, History& history);

/// Appends a step's text with the names in braces filled in: `port`, `id`, `ext`, `name`, `caller`,
/// `message`, `object`, `count`, `sequence`, `change`, `seconds`, `waited` and `bytes` (of sound,
/// for the pause) are the occurrence's own; `reason`, `trunk`, `greeting`, `pager`, `server`,
/// `percent`, `hex`, `few`, `small`, `large` are drawn each time.
void appendText(std::string& line, std::string_view text, const Occurrence& occurrence,
                Random& random);

} // namespace sample
