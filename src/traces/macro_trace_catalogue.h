#pragma once

#include "platform/xml.h"

#include <string>

class TraceRecordset;
struct ToolContext;

/// All macro trace definitions, merged by the name of their groups into `g_domMacroTraces`.
namespace mdlTraces {

/// Builds the catalogue anew from the files HT*.xml of `g_strMacroTraceFolder`: a document element
/// HYBRIDTRACES with one GA for each group name, each TRACE in it marked `Enabled`. Later files of
/// a group add their TRACE elements alone. Raises nothing; a folder with too many bad files leaves
/// the catalogue with what was read until then.
void initMacroTraces(ToolContext& tool);

/// Sets the attribute `Enabled` of a TRACE to what the registry records: "1" on, "0" off.
void appendEnabledAttribute(ToolContext& tool, const XmlElementPtr& traceElement,
                            const std::string& groupName, const std::string& traceName);

/// Adds a row for each definition file: `Name` without the folder, `Data` the whole text, which is
/// UTF-8 or else in the server's code page. Raises what reading and adding raise; 62 for an empty
/// file.
void storeMacroTraceFiles(ToolContext& tool, TraceRecordset& target);

} // namespace mdlTraces
