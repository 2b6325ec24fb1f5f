#pragma once

#include "timeline/filter/filter.h"
#include "timeline/filter/time_text.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace cli {

struct ReadOptions;

/// Which rows `read` is asked for.
class RowChoice {
public:
    /// What a macro trace turns on, by its name "GROUP - TRACE". Raises CommandFailure for none.
    using MacroTraceLookUp =
        std::function<std::vector<timeline::ComponentLevels>(const std::string& name)>;

    /// Raises UsageError for what makes no sense, such as a pattern that is none.
    explicit RowChoice(const ReadOptions& options);

    /// Looks the macro trace up, if one is asked for. Raises what the look-up raises.
    void findMacroTrace(const MacroTraceLookUp& lookUp);

    /// Whether its times look at the last row of what is read.
    bool needsLastRow() const;

    /// Whether it takes every row.
    bool takesAll() const;

    /// As a filter; `lastRow` is the moment of the last row, where that is needed. Times are told
    /// by the clock.
    timeline::Filter filter(timeline::Moment lastRow, timeline::ServerClock& clock) const;

private:
    void addColumns(const ReadOptions& options);
    void addPatterns(const ReadOptions& options);
    void addExclusion(const std::string& exclusion, timeline::Letters letters);

    timeline::Choice choice_;
    std::string macroTrace_;
    std::optional<timeline::TimeText> since_;
    std::optional<timeline::TimeText> until_;
};

} // namespace cli
