#pragma once

#include "backends/jet/scratch_database.h"

#include <filesystem>
#include <string>
#include <vector>

/// A second of local time, counted from 1970.
using LocalSecond = long long;

LocalSecond localSecond(int year, int month, int day, int hour, int minute);

/// The rows that a gather of a time frame is to add to "tblTraces", worked out from a sample
/// server's logs in another way than the tool's: each file is taken apart as a whole.
///
/// `extended` tells the form of the raw lines. Texts are UTF-8.
std::vector<TextRow> expectedRows(const std::filesystem::path& logFolder, LocalSecond start,
                                  LocalSecond end, bool extended);
