#include "timeline/sources/macro_trace_definitions.h"

#include "platform/trace_database.h"
#include "platform/trace_rows.h"
#include "platform/xml.h"
#include "runtime/numbers.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

namespace timeline {

namespace {

constexpr std::string_view definitionsTable = "tblMacroTraces";
constexpr double mostLevel = 32'767;

/// The number that an attribute begins with, as where the trace is turned on; nothing for one that
/// is missing or no level.
std::optional<std::int16_t> levelOf(const XmlElement& flag)
{
    const auto text = flag.attribute("ID");
    if (!text) return std::nullopt;
    try {
        const double number = leadingNumber(*text);
        if (std::abs(number) > mostLevel) return std::nullopt;
        return static_cast<std::int16_t>(std::nearbyint(number));
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

ComponentLevels levelsOf(const XmlElement& component)
{
    ComponentLevels levels;
    levels.component = component.attribute("GROUP").value_or("");
    for (const auto& flag : component.selectNodes("FLAG"))
        if (const auto level = levelOf(*flag)) levels.levels.push_back(*level);
    return levels;
}

} // namespace

void MacroTraceDefinitions::add(const XmlDocument& file)
{
    for (const auto& group : file.selectNodes("GA")) {
        for (const auto& trace : group->selectNodes("TRACE")) {
            MacroTraceDefinition& definition = all_.emplace_back();
            definition.group = group->attribute("NAME").value_or("");
            definition.trace = trace->attribute("NAME").value_or("");
            for (const auto& component : trace->selectNodes("DIAG"))
                definition.levels.push_back(levelsOf(*component));
        }
    }
}

const MacroTraceDefinition* MacroTraceDefinitions::find(std::string_view name) const
{
    const auto found = std::find_if(all_.begin(), all_.end(), [&](const auto& definition) {
        return equalIgnoringCase(definition.group + " - " + definition.trace, name);
    });
    return found == all_.end() ? nullptr : &*found;
}

MacroTraceDefinitions MacroTraceDefinitions::of(const TraceTables& database, XmlService& xml,
                                                std::vector<std::string>& troubles)
{
    MacroTraceDefinitions definitions;
    const TraceTable* table = database.find(definitionsTable);
    if (table == nullptr) return definitions;
    const std::size_t name = table->find("Name");
    const std::size_t data = table->find("Data");
    if (name == TraceTable::noColumn || data == TraceTable::noColumn) return definitions;
    const auto rows = database.rows(*table);
    const auto document = xml.newDocument();
    for (bool more = true; more;) {
        try {
            more = rows->next();
            if (!more) break;
            if (document->loadText(std::string(rows->text(data))))
                definitions.add(*document);
            else
                troubles.push_back("the macro traces of " + std::string(rows->text(name)) +
                                   " can't be read");
        } catch (const RunTimeError& error) {
            if (error.number() != traceDatabaseErrors::unknownFormat) throw;
            troubles.push_back("some macro traces can't be read: " + error.description());
        }
    }
    return definitions;
}

} // namespace timeline
