#include "hosts/cli/reading/macro_trace_look_up.h"

#include "backends/xml/libxml_documents.h"
#include "core/tool_context.h"
#include "hosts/cli/command.h"
#include "hosts/cli/driving/known_names.h"
#include "hosts/cli/naming/matching_name.h"
#include "hosts/cli/naming/near_names.h"
#include "platform/xml.h"
#include "runtime/text.h"
#include "timeline/sources/macro_trace_definitions.h"
#include "timeline/sources/trace_database_source.h"
#include "traces/macro_trace_catalogue.h"
#include "traces/trace_bits.h"

#include <algorithm>
#include <optional>
#include <set>
#include <utility>

namespace cli {

namespace {

using timeline::ComponentLevels;
using timeline::MacroTraceDefinitions;

ComponentLevels levelsOf(const XmlElement& component)
{
    ComponentLevels levels;
    levels.component = component.attribute("GROUP").value_or("");
    for (const auto& flag : component.selectNodes("FLAG"))
        levels.levels.push_back(mdlTraces::leadingLevel(flag->attribute("ID").value_or("")));
    return levels;
}

/// A component and a level each.
std::set<std::pair<std::string, std::int16_t>> levelsIn(const std::vector<ComponentLevels>& traced)
{
    std::set<std::pair<std::string, std::int16_t>> levels;
    for (const ComponentLevels& component : traced)
        for (const std::int16_t level : component.levels)
            levels.emplace(lowerCase(component.component), level);
    return levels;
}

class LookUp {
public:
    LookUp(const std::string& name, std::vector<std::string>& notes) : name_(name), notes_(notes) {}

    void lookInDatabases(const timeline::Timeline& timeline)
    {
        LibxmlDocuments xml;
        for (std::size_t at = 0; at < timeline.sourceCount(); ++at)
            if (const auto* database =
                    dynamic_cast<const timeline::TraceDatabaseSource*>(&timeline.source(at)))
                lookIn(*database, xml);
    }

    void lookAtServer(ToolContext& tool)
    {
        atServer_ = true;
        mdlTraces::initMacroTraces(tool);
        const auto traces = knownNames::shownTraces(*tool.g_domMacroTraces);
        const auto* trace = named(traces);
        if (trace == nullptr) return;
        found_.emplace();
        for (const auto& component : trace->element->selectNodes("DIAG"))
            found_->push_back(levelsOf(*component));
    }

    bool hasFound() const { return found_.has_value(); }

    std::vector<ComponentLevels> take()
    {
        if (found_) return *std::move(found_);
        if (!inDatabases_ && !atServer_)
            throw CommandFailure("no server tells what \"" + name_ + "\" traces; name a --site");
        std::string where;
        if (inDatabases_)
            where = atServer_ ? ", neither in the trace databases nor at the server"
                              : " in the trace databases";
        const std::string lists = !atServer_     ? ""
                                  : inDatabases_ ? "; orvandiag macro lists the server's"
                                                 : "; orvandiag macro lists them";
        throw CommandFailure("no macro trace \"" + name_ + "\"" + where +
                             didYouMean(name_, known_, lists));
    }

private:
    /// The one of these macro traces that is asked for; null for none. All of them are known then.
    template <typename Trace>
    const Trace* named(const std::vector<Trace>& traces)
    {
        std::vector<std::string> names;
        for (const Trace& trace : traces) names.push_back(trace.group + " - " + trace.trace);
        known_.insert(known_.end(), names.begin(), names.end());
        const auto name = matchingName(name_, names);
        if (!name) return nullptr;
        return &traces[static_cast<std::size_t>(std::find(names.begin(), names.end(), *name) -
                                                names.begin())];
    }

    void lookIn(const timeline::TraceDatabaseSource& database, XmlService& xml)
    {
        inDatabases_ = true;
        const std::string& source = database.facts().name;
        std::vector<std::string> troubles;
        const auto definitions = MacroTraceDefinitions::of(database.tables(), xml, troubles);
        for (const std::string& trouble : troubles) notes_.push_back(source + ": " + trouble);
        const auto* definition = named(definitions.all());
        if (definition == nullptr) return;
        if (!found_) {
            found_ = definition->levels;
            foundIn_ = source;
        } else if (levelsIn(*found_) != levelsIn(definition->levels)) {
            notes_.push_back(source + " defines \"" + name_ + "\" otherwise than " + foundIn_ +
                             ", which holds for all rows");
        }
    }

    const std::string& name_;
    std::vector<std::string>& notes_;
    std::optional<std::vector<ComponentLevels>> found_;
    std::string foundIn_;
    std::vector<std::string> known_; ///< "GROUP - TRACE" of each
    bool inDatabases_ = false;
    bool atServer_ = false;
};

} // namespace

std::vector<ComponentLevels> findMacroTrace(const std::string& name,
                                            const timeline::Timeline& timeline, ToolContext* tool,
                                            std::vector<std::string>& notes)
{
    LookUp lookUp(name, notes);
    lookUp.lookInDatabases(timeline);
    if (!lookUp.hasFound() && tool != nullptr) lookUp.lookAtServer(*tool);
    return lookUp.take();
}

} // namespace cli
