#pragma once

#include <string>
#include <utility>
#include <vector>

/// How many rows "tblTraces" of a trace database, a file of this machine, has for each process,
/// sorted by process. None for a file that can't be read.
std::vector<std::pair<std::string, long long>> rowsByProcess(const std::string& database);

/// Whether "tblTraces" has a row. False for a file that can't be read.
bool hasRows(const std::string& database);
