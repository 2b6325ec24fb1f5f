#include "hosts/cli/gather_failure.h"

#include "core/error_trap.h"
#include "platform/code_page.h"
#include "platform/trace_database.h"
#include "platform/tree_view.h"
#include "runtime/text.h"

namespace {

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

/// The log that stands in bold, or the empty text.
std::string currentLog(const TreeView& steps)
{
    for (int index = 1; index <= steps.count(); ++index)
        if (steps.item(index).bold()) return steps.item(index).text();
    return {};
}

} // namespace

bool costsAResult(const RunTimeError& error, std::string_view procName)
{
    return beginsWith(procName, "[mdlLogs]") && procName != "[mdlLogs]compressResults" &&
           !isOfAMalformedLine(error.number());
}

std::string failureText(const RunTimeError& error, std::string_view procName, const TreeView& steps)
{
    const std::string current = currentLog(steps);
    if (error.number() == errorCountExceeded && current.empty())
        return "the filters could not all be stored: too many errors";
    if (error.number() == errorCountExceeded)
        return current + " has too many malformed lines, and was read no further than the eleventh";
    // The one file that the pipeline reads by itself is a definition, before the logs.
    const bool ofADefinition = procName == pipelineProc && current.empty() &&
                               error.number() == runTimeErrors::inputPastEnd;
    return (ofADefinition ? "the macro trace definitions could not all be stored: " : "") +
           error.description();
}

std::string whyNoCabinet(const std::string& destination)
{
    std::string named;
    windows1252().appendUtf8(named, windows1252().bytesOf(destination));
    if (named == destination) return {};
    return ": the destination's name has characters that Windows-1252 lacks";
}
