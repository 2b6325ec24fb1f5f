#include "hosts/common/gather/gather_troubles.h"

#include "controls/tree_view.h"
#include "core/error_trap.h"
#include "gather/pipeline.h"
#include "platform/trace_database.h"
#include "runtime/text.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::string_view pipelineProc = "[mdlLogs]processLogs";
constexpr std::string_view filtersProc = "[mdlLogs]saveUniqueFilters";
constexpr std::string_view packingProc = "[mdlLogs]compressResults";

/// What a line may raise that is malformed: it is copied or stored as it can be.
bool isOfAMalformedLine(int error)
{
    switch (error) {
    case runTimeErrors::invalidCall:
    case runTimeErrors::typeMismatch:
    case runTimeErrors::invalidPropertyValue:
    case traceDatabaseErrors::fieldTooSmall:
    case traceDatabaseErrors::zeroLength:
        return true;
    default:
        return false;
    }
}

/// Whether an error that a gather went on after may have cost the person a result.
bool costsAResult(const RunTimeError& error, std::string_view procName)
{
    return beginsWith(procName, "[mdlLogs]") &&
           (procName == packingProc || !isOfAMalformedLine(error.number()));
}

/// The leaf that stands in bold; null between the logs.
const TreeNode* currentLeaf(const TreeView& steps)
{
    for (int index = 1; index <= steps.count(); ++index)
        if (steps.item(index).bold()) return &steps.item(index);
    return nullptr;
}

} // namespace

std::string causeOf(const RunTimeError& error)
{
    std::string cause = error.description();
    while (!cause.empty() && cause.back() == '.') cause.pop_back();
    return cause;
}

GatherTroubles::GatherTroubles(const TreeView& steps, std::function<bool()> destinationThere)
    : steps_(steps), destinationThere_(std::move(destinationThere))
{}

void GatherTroubles::noteMissingLog()
{
    const TreeNode* leaf = currentLeaf(steps_);
    if (leaf) add({GatherStage::serverLog, leaf->text(), false, ""});
}

void GatherTroubles::note(const RunTimeError& error, std::string_view procName)
{
    if (!costsAResult(error, procName)) return;
    const bool tooMany = error.number() == errorCountExceeded;
    if (procName == packingProc) return add({GatherStage::packing, "", tooMany, causeOf(error)});
    const TreeNode* leaf = currentLeaf(steps_);
    if (leaf) {
        const bool server = leaf->parent() && leaf->parent()->text() == mdlLogs::orvanLogsBranch;
        add({server ? GatherStage::serverLog : GatherStage::eventLog, leaf->text(), tooMany,
             causeOf(error)});
        return;
    }
    if (!at(GatherStage::run) && procName == pipelineProc) destinationMade_ = destinationThere_();
    // The one file that the pipeline reads by itself is a definition, before the logs.
    GatherStage stage = GatherStage::run;
    if (procName == filtersProc)
        stage = GatherStage::filters;
    else if (procName == pipelineProc && error.number() == runTimeErrors::inputPastEnd)
        stage = GatherStage::definitions;
    add({stage, "", tooMany, tooMany ? "too many errors" : causeOf(error)});
}

/// The first trouble is the cause: that a trap gives up behind it says no more. Malformed lines,
/// which are no trouble each, come here when a trap gives up for them alone.
void GatherTroubles::add(GatherTrouble trouble)
{
    const auto first =
        std::find_if(troubles_.begin(), troubles_.end(), [&](const GatherTrouble& known) {
            return known.stage == trouble.stage && known.log == trouble.log;
        });
    if (first == troubles_.end())
        troubles_.push_back(std::move(trouble));
    else if (trouble.tooManyErrors)
        first->gaveUp = true;
}

const GatherTrouble* GatherTroubles::at(GatherStage stage, std::string_view log) const
{
    for (const GatherTrouble& trouble : troubles_)
        if (trouble.stage == stage && trouble.log == log) return &trouble;
    return nullptr;
}
