#pragma once

#include "timeline/filter/filter.h"

#include <string>
#include <string_view>
#include <vector>

class TraceTables;
class XmlDocument;
class XmlService;

namespace timeline {

/// What one macro trace turns on.
struct MacroTraceDefinition {
    std::string group;
    std::string trace;
    std::vector<ComponentLevels> levels; ///< a component each, in the order of the definition
};

/// Macro traces by their names, as definition files have them.
class MacroTraceDefinitions {
public:
    /// The definitions that a trace database carries. A file among them that is none is passed
    /// over, with a sentence in `troubles`. Raises 57.
    static MacroTraceDefinitions of(const TraceTables& database, XmlService& xml,
                                    std::vector<std::string>& troubles);

    /// Adds those of a definition file.
    void add(const XmlDocument& file);

    const std::vector<MacroTraceDefinition>& all() const { return all_; }

    /// The macro trace called "GROUP - TRACE", in whatever case of its ASCII letters; null for
    /// none.
    const MacroTraceDefinition* find(std::string_view name) const;

private:
    std::vector<MacroTraceDefinition> all_;
};

} // namespace timeline
