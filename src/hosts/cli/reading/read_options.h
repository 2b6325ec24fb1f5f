#pragma once

#include "text/code_page.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

class Arguments;

/// The code page of a number as a site's settings have it; nothing for a text that names none that
/// this machine knows.
std::optional<CodePage> codePageOfText(std::string_view text);

/// What `read` is asked for, as it stands on the command line.
struct ReadOptions {
    std::vector<std::string> logs;

    std::string fields;
    std::string codePage;
    std::string zone;

    std::string since;
    std::string until;
    std::string last;
    std::vector<std::string> processes;
    std::vector<std::string> components;
    std::vector<std::string> sources;
    std::vector<std::string> levels;
    std::vector<std::string> calls;
    std::vector<std::string> ports;
    std::vector<std::string> threads;
    std::vector<std::string> numbers;
    std::vector<std::string> patterns;
    bool ignoreCase = false;
    std::vector<std::string> exclusions;
    std::string macroTrace;

    std::uint64_t first = 0; ///< 0 for all rows
    std::uint64_t tail = 0;  ///< 0 for all rows

    bool follow = false; ///< after the last rows, those that come

    bool count = false;
    std::string countBy;
    bool histogram = false;
    bool listCalls = false;

    std::string columns;
    std::string format;
    bool excel = false;
    bool wide = false;
    std::string color; ///< empty for what the person has set
    bool noPager = false;

    /// Adds them all to the command.
    void declare(Arguments& arguments);

    /// Whether something is counted, and no row is shown.
    bool counts() const { return count || histogram || listCalls || !countBy.empty(); }

    /// Raises UsageError where two of them contradict each other.
    void check() const;
};

} // namespace cli
