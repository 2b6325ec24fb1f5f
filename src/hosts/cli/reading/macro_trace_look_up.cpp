#include "hosts/cli/reading/macro_trace_look_up.h"

#include "backends/xml/libxml_documents.h"
#include "core/tool_context.h"
#include "hosts/cli/command.h"
#include "hosts/cli/driving/known_names.h"
#include "hosts/cli/reading/near_names.h"
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
        for (const auto& shown : knownNames::shownTraces(*tool.g_domMacroTraces)) {
            known_.push_back(shown.group + " - " + shown.trace);
            if (found_ || !equalIgnoringCase(known_.back(), name_)) continue;
            found_.emplace();
            for (const auto& component : shown.element->selectNodes("DIAG"))
                found_->push_back(levelsOf(*component));
        }
    }

    bool hasFound() const { return found_.has_value(); }

    std::vector<ComponentLevels> take()
    {
        if (found_) return *std::move(found_);
        const std::string hint = nearNamesHint(name_, known_);
        if (!inDatabases_ && !atServer_)
            throw CommandFailure("no server tells what \"" + name_ + "\" traces; name a --site");
        std::string where;
        if (inDatabases_)
            where = atServer_ ? ", neither in the trace databases nor at the server"
                              : " in the trace databases";
        throw CommandFailure("no macro trace \"" + name_ + "\"" + where + hint +
                             (!atServer_     ? ""
                              : inDatabases_ ? "; orvandiag macro lists the server's"
                                             : "; orvandiag macro lists them"));
    }

private:
    void lookIn(const timeline::TraceDatabaseSource& database, XmlService& xml)
    {
        inDatabases_ = true;
        const std::string& source = database.facts().name;
        std::vector<std::string> troubles;
        const auto definitions = MacroTraceDefinitions::of(database.tables(), xml, troubles);
        for (const std::string& trouble : troubles) notes_.push_back(source + ": " + trouble);
        for (const auto& definition : definitions.all())
            known_.push_back(definition.group + " - " + definition.trace);
        const auto* definition = definitions.find(name_);
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
