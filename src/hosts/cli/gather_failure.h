#pragma once

#include "runtime/run_time_error.h"

#include <string>
#include <string_view>

class TreeView;

/// The pipeline's own name in the tool's log.
constexpr std::string_view pipelineProc = "[mdlLogs]processLogs";

/// Whether an error that a gather went on after cost the person a result. Whether packing did, its
/// cabinet tells.
bool costsAResult(const RunTimeError& error, std::string_view procName);

/// What went wrong, in words for the person. `steps` is the tree that the run walks.
std::string failureText(const RunTimeError& error, std::string_view procName,
                        const TreeView& steps);

/// What in a destination's name keeps its files out of a cabinet, as the end of a sentence: the
/// directives name them in one byte a character. The empty text for nothing.
std::string whyNoCabinet(const std::string& destination);
