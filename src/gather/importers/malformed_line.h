#pragma once

#include "core/error_trap.h"

#include <string>

/// What the importers make of an error at a line: a malformed line (error 5) is logged in its own
/// words, under the name of the importer that all others took after; any other error goes the
/// common way.
Resume afterErrorAtLine(ToolContext& tool, const std::string& line, const RunTimeError& error);
