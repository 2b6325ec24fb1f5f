#pragma once

#include <string_view>

/// What the names of the server's log files are made of: `diag_PROCESS_20051008_152307.txt` for a
/// log of a process, `data_...` for a data file, `..._fmtd.txt` for a formatted copy.
namespace logFileNames {

constexpr std::string_view diagnosticPrefix = "diag_";
constexpr std::string_view dataPrefix = "data_";
constexpr std::string_view ending = ".txt";
constexpr std::string_view formattedTag = "_fmtd";

} // namespace logFileNames
