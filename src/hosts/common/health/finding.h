#pragma once

#include "hosts/common/sentence.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// What a check of a server came to.
enum class HealthState {
    ok,
    missing,  ///< it is not there
    damaged,  ///< it is there, and not what it has to be
    unusable, ///< it is there, and this program may not or can't use it now
    unknown,  ///< nothing can be said of it
};

/// What a check found.
struct HealthReport {
    HealthState state = HealthState::ok;
    Sentence detail;
    std::optional<Sentence> remedy = {}; ///< what to do; nothing where all is well
};

/// One line of an examination. The id is stable: scripts know it.
struct Finding {
    std::string_view id;      ///< such as "database.flags"
    std::string_view subject; ///< what was looked at, in English, for people
    /// Whether a part of the tool's work can't be done without it. What is merely useful leaves the
    /// tool whole.
    bool needed = false;
    HealthReport report;

    bool well() const { return report.state == HealthState::ok; }
};

/// The word for a state: "ok", "missing", "damaged", "unusable", "unknown".
std::string_view wordOf(HealthState state);

/// How many of the needed things are not known to be well.
std::size_t neededLacks(const std::vector<Finding>& findings);
